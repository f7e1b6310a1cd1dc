#include "film/banana_scores.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "banks/critics_banks.h"
#include "banks/draw.h"
#include "core/bands.h"
#include "core/number_style.h"
#include "core/text.h"

namespace tb {

namespace {

constexpr std::size_t letters = 26;
constexpr std::size_t secondHalf = 13;  // the letter n

// Percent added to the audience score by the title's first letter, a to z.
constexpr std::array<int, letters> audienceNudges = {
    -12, 6, -7, 11, -17, 1, -10, 15, -8, 3, -18, 14, -5, 5, -9, 18, -14, 2, -6, 9, -15, 13, -13, 10, -16, 8};

// Thresholds of the critics' and the audience's badges.
constexpr double certifiedScore = 75;
constexpr std::int64_t certifiedRatings = 80;
constexpr double verifiedScore = 90;
constexpr std::int64_t verifiedRatings = 500;
constexpr double passableScore = 60;  // for both

constexpr std::int64_t maxCounted = 10'000;  // audience reviews

struct ConsensusBand {
  std::int64_t upTo;  // whole percent of the critics
  Bank bank;
};
constexpr std::array<ConsensusBand, 6> consensusBands = {{
    {.upTo = 19, .bank = bank::criticConsensusBank0},
    {.upTo = 39, .bank = bank::criticConsensusBank20},
    {.upTo = 59, .bank = bank::criticConsensusBank40},
    {.upTo = 74, .bank = bank::criticConsensusBank60},
    {.upTo = 89, .bank = bank::criticConsensusBank75},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .bank = bank::criticConsensusBank90},
}};

// The index of the first letter in the alphabet; nothing when it is another character.
std::optional<std::size_t> firstLetter(std::string_view title) {
  const std::string lower = lowerCase(title.substr(0, 1));
  if (lower.empty() || lower[0] < 'a' || lower[0] > 'z') return std::nullopt;
  return static_cast<std::size_t>(lower[0] - 'a');
}

std::string_view criticBadgeOf(const Film& film, double score) {
  if (film.numImbdRatings >= certifiedRatings && score >= certifiedScore) return "certifiedFreshBanana.png";
  return score < passableScore ? "spoiledBanana.png" : "bananaOnly.png";
}

std::string_view audienceBadgeOf(const Film& film, double score) {
  if (score >= verifiedScore && film.numImbdRatings >= verifiedRatings) return "verifiedHot.png";
  return score >= passableScore ? "popcornOnly.png" : "rottenPopcorn.png";
}

}  // namespace

// Titles in the first half of the alphabet lose points, more for later letters; the second half gains.
double criticNudge(std::string_view title) {
  const auto letter = firstLetter(title);
  if (!letter) return 1;
  const auto place = static_cast<double>(*letter);
  return 1 + (*letter < secondHalf ? -6 - place : place - 7) / 100;
}

double audienceNudge(std::string_view title) {
  const auto letter = firstLetter(title);
  return letter ? 1 + audienceNudges[*letter] / 100.0 : 1;
}

BananaScores bananaScores(const Film& film) {
  BananaScores scores;
  scores.critic = static_cast<double>(film.imbdMetascore) * criticNudge(film.title);
  scores.audience = std::min(100.0, film.imbdRating * 10 * audienceNudge(film.title));
  scores.criticBadge = criticBadgeOf(film, scores.critic);
  scores.audienceBadge = audienceBadgeOf(film, scores.audience);
  return scores;
}

std::int64_t wholePercent(double score) { return static_cast<std::int64_t>(score); }

std::string drawConsensus(Game& game, const Film& film, double criticScore) {
  const ConsensusBand* const band = bandOf(consensusBands, wholePercent(criticScore));
  return fill(drawFreshRow(game, band->bank), {{"title", film.title}});
}

std::string criticCount(const Locale& locale, const Film& film) {
  return plainCount(locale, film.numMetascoreRatings) + " Reviews";
}

std::string audienceCount(const Locale& locale, const Film& film) {
  const bool isBeyond = film.numImbdRatings > maxCounted;
  return plainCount(locale, std::min(film.numImbdRatings, maxCounted)) +
         (isBeyond ? "+ Reviews" : " Reviews");
}

}  // namespace tb
