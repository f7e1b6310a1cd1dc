#include "social/fame.h"

#include <algorithm>
#include <array>
#include <limits>

#include "core/bands.h"
#include "core/talent_scores.h"
#include "film/box_office.h"
#include "film/film_record.h"

namespace tb {

namespace {

constexpr double pointsPerWin = 2;
constexpr double pointsPerNomination = 0.25;
constexpr double maxAwardPoints = 10;
constexpr std::int64_t maxImage = 100;
constexpr double pointsForRetention = 10;
constexpr double pointsPerReturn = 5;
constexpr double maxReturnPoints = 25;

// The points grow in a straight line from `points` at `start` fans, by `growth` over `width` fans.
struct FanPiece {
  std::int64_t upTo;  // fans
  double points;
  double growth;
  double start;  // fans
  double width;  // fans
};

// The top piece begins with a jump from 10 to 12 points, and ends at 200 million fans.
constexpr std::array<FanPiece, 7> fanPieces = {{
    {.upTo = 1'000, .points = 0, .growth = 1, .start = 0, .width = 1e3},
    {.upTo = 10'000, .points = 1, .growth = 2, .start = 1'001, .width = 9e3},
    {.upTo = 100'000, .points = 2, .growth = 2, .start = 10'001, .width = 9e4},
    {.upTo = 1'000'000, .points = 4, .growth = 2, .start = 100'001, .width = 9e5},
    {.upTo = 10'000'000, .points = 6, .growth = 2, .start = 1'000'001, .width = 9e6},
    {.upTo = 100'000'000, .points = 8, .growth = 2, .start = 10'000'001, .width = 9e7},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .points = 12, .growth = 2, .start = 1e8, .width = 1e8},
}};

double fanPoints(std::int64_t fans) {
  if (fans <= 0) return 0;
  const FanPiece& piece = *bandOf(fanPieces, fans);
  return piece.points + piece.growth * std::min((static_cast<double>(fans) - piece.start) / piece.width, 1.0);
}

struct Letter {
  std::int64_t upTo;  // fame level
  std::string_view letter;
};

constexpr std::array<Letter, 11> letters = {
    {{.upTo = 10, .letter = "D"},
     {.upTo = 20, .letter = "D+"},
     {.upTo = 30, .letter = "C-"},
     {.upTo = 40, .letter = "C"},
     {.upTo = 50, .letter = "C+"},
     {.upTo = 60, .letter = "B-"},
     {.upTo = 70, .letter = "B"},
     {.upTo = 80, .letter = "B+"},
     {.upTo = 94, .letter = "A-"},
     {.upTo = 100, .letter = "A"},
     {.upTo = std::numeric_limits<std::int64_t>::max(), .letter = "A+"}}};

// Prizes for directing or writing count when the performer holds them.
void countAwards(const WorldState& world, FameParts& parts) {
  for (const Award& award : world.saveAllMovieAwards) {
    if (award.name != world.myName) continue;
    parts.nominations += 1;
    parts.wins += award.isWinner;
  }
  parts.awards = static_cast<std::int64_t>(std::min(awardScore(parts), maxAwardPoints));
}

double grossSoFar(const WorldState& world, const Film& film) {
  return film.boxOfficeGross > 0 ? film.boxOfficeGross : grossOf(world, film.filmId).value_or(0);
}

// Of released titles with a principal part. A film's score is 0 until its release.
void rateTitles(const WorldState& world, FameParts& parts) {
  double ratings = 0;
  double metascores = 0;
  double titles = 0;
  for (const Film& film : world.saveAllFilmList) {
    if (film.isPrincipal != rolePart::principal || !isOut(world, film) || film.imbdRating <= 0) continue;
    ratings += film.imbdRating;
    metascores += static_cast<double>(film.imbdMetascore);
    titles += 1;
    if (film.typeOfFilm != filmType::feature) continue;
    parts.films += 1;
    parts.gross += grossSoFar(world, film);
    parts.budgets += film.budget;
  }
  // The means first: the mean of each title's own score is a little lower when rounded, and can cost a point.
  if (titles > 0) parts.meanRating = (ratings / titles + metascores / titles / 10) * 0.5;
  parts.rating = static_cast<std::int64_t>(parts.meanRating);
  if (parts.budgets > 0) {
    parts.returns = std::min(maxReturnPoints, pointsPerReturn * parts.gross / parts.budgets);
  }
}

void rateRetention(const WorldState& world, FameParts& parts) {
  double sum = 0;
  double seasons = 0;
  for (const Ratings& season : world.saveAllRatings) {
    if (season.premiereViews.empty() || season.premiereViews.front() < 1) continue;  // viewers
    sum += season.premiereViews.back() / season.premiereViews.front();
    seasons += 1;
  }
  parts.stayed = seasons > 0 ? sum / seasons : 0;
  parts.retention = pointsForRetention * parts.stayed;
}

}  // namespace

double awardScore(const FameParts& parts) {
  return static_cast<double>(parts.wins) * pointsPerWin +
         static_cast<double>(parts.nominations) * pointsPerNomination;
}

FameParts fameParts(const WorldState& world) {
  FameParts parts;
  countAwards(world, parts);
  rateTitles(world, parts);
  rateRetention(world, parts);
  parts.experience = static_cast<std::int64_t>(world.experience / experiencePerFamePoint);
  parts.image = std::min(world.publicImage, maxImage) / scorePerFamePoint;
  parts.talent = overallTalent(world) / scorePerFamePoint;
  parts.fans = fanPoints(world.totalFans);
  return parts;
}

std::int64_t fameLevel(const FameParts& parts) {
  const double extra = parts.fans + parts.retention + parts.returns;
  return parts.awards + parts.rating + parts.experience + parts.image + parts.talent +
         static_cast<std::int64_t>(extra);
}

void updateFame(Game& game) { game.world.saveFameLevel = fameLevel(fameParts(game.world)); }

std::string_view fameLetter(std::int64_t level) { return bandOf(letters, level)->letter; }

std::optional<std::int64_t> nextLetterFrom(std::int64_t level) {
  const Letter* const letter = bandOf(letters, level);
  if (letter == &letters.back()) return std::nullopt;
  return letter->upTo + 1;
}

}  // namespace tb
