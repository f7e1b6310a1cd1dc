#include "film/banana_reviews.h"

#include <algorithm>
#include <array>

#include "banks/critics_banks.h"
#include "banks/draw.h"
#include "banks/names.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/format.h"
#include "core/text.h"
#include "film/banana_scores.h"
#include "film/film_record.h"
#include "film/review_words.h"
#include "film/user_reviews.h"

namespace tb {

namespace {

constexpr std::int64_t maxCards = 5;

// --- Critics ---

// A critic's bank of texts and the score on the card, by the critics' whole percent. Above the last band a
// card has neither.
struct CriticBand {
  std::int64_t upTo;
  Bank review;
  double minScore;
  double maxScore;
};
constexpr std::array<CriticBand, 5> criticBands = {{
    {.upTo = 20, .review = bank::longReviewBank1, .minScore = 1, .maxScore = 20},
    {.upTo = 40, .review = bank::longReviewBank2, .minScore = 21, .maxScore = 40},
    {.upTo = 60, .review = bank::longReviewBank3, .minScore = 41, .maxScore = 60},
    {.upTo = 80, .review = bank::longReviewBank4, .minScore = 61, .maxScore = 80},
    {.upTo = 100, .review = bank::longReviewBank5, .minScore = 81, .maxScore = 100},
}};
constexpr double scoreOfAStar = 25;

// Portraits are numbered from 1.
struct Portraits {
  std::string_view stem;
  std::int64_t count;
};
constexpr Portraits portraitsOfWomen = {.stem = "critic_f", .count = 24};
constexpr Portraits portraitsOfMen = {.stem = "critic_m", .count = 35};
constexpr int drawsForNewFace = 10;

// Draws a portrait that no other card shows; gives up after ten draws.
std::string drawPortrait(RandomSource& random, const Portraits& portraits, const std::vector<Review>& cards) {
  std::string image;
  for (int draw = 0; draw < drawsForNewFace; ++draw) {
    image = tb::format("{} ({}).png", portraits.stem, 1 + RandomRange(random, portraits.count));
    if (!std::ranges::contains(cards, image, &Review::image)) break;
  }
  return image;
}

Review criticCard(Game& game, const Film& film, double criticScore, const std::vector<Review>& others) {
  Review card;
  if (const CriticBand* const band = bandOf(criticBands, wholePercent(criticScore))) {
    card.review = drawReview(game, band->review, film, lowerCase(mainGenre(film)));
    const double score = RandomUnit(game.random, band->minScore, band->maxScore);
    card.stars = std::max(1.0, score / scoreOfAStar);
  }
  const bool isMale = RandomRange(game.random, 2) == 0;
  card.name = inventedName(game.random, isMale);
  card.newsOutlet = drawFreshRow(game, bank::reviewerCompanyBank);
  card.image = drawPortrait(game.random, isMale ? portraitsOfMen : portraitsOfWomen, others);
  return card;
}

// --- The audience ---

// Draws stars within one of the audience score.
std::int64_t drawStars(RandomSource& random, double audienceScore) {
  constexpr double scoreOfALevel = 20;
  constexpr std::int64_t maxStars = 5;
  const auto level = static_cast<std::int64_t>(audienceScore / scoreOfALevel);
  return std::clamp<std::int64_t>(level + RandomRange(random, 3), 1, maxStars);
}

AudienceReview audienceCard(Game& game, const Film& film, double audienceScore) {
  AudienceReview card{.stars = drawStars(game.random, audienceScore)};
  card.review = drawReview(game, snippetsOfLevel(static_cast<std::size_t>(card.stars - 1)), film);
  card.name = drawHandle(game.random);
  return card;
}

// --- Dates ---

// The Friday of a tracked week, which can be in an earlier year.
DateLabel dateOf(const Game& game, std::int64_t trackedWeek) {
  const WorldState& world = game.world;
  const std::int64_t weeksAgo = world.weekNumberForTracking - trackedWeek;
  const std::int64_t weeks = world.yearNumber * weeksPerYear + world.weekNumber - 1 - weeksAgo;
  return dateLabel(game.locale, weeks % weeksPerYear + 1, weeks / weeksPerYear).value_or(DateLabel{});
}

// Draws a week from the release to now, at most a year after the release.
std::int64_t drawWeekOnShow(Game& game, const Film& film) {
  const std::int64_t weeks = game.world.weekNumberForTracking - film.weekReleased;
  return film.weekReleased + RandomRange(game.random, std::clamp<std::int64_t>(weeks, 1, weeksPerYear));
}

}  // namespace

std::vector<Review> drawCriticCards(Game& game, const Film& film, double criticScore) {
  std::vector<Review> cards;
  while (std::ssize(cards) < std::min(maxCards, film.numMetascoreRatings)) {
    cards.push_back(criticCard(game, film, criticScore, cards));
    cards.back().date = dateOf(game, film.weekReleased);
  }
  return cards;
}

std::vector<AudienceReview> drawAudienceCards(Game& game, const Film& film, double audienceScore) {
  std::vector<AudienceReview> cards;
  while (std::ssize(cards) < std::min(maxCards, film.numImbdRatings)) {
    cards.push_back(audienceCard(game, film, audienceScore));
    cards.back().date = dateOf(game, drawWeekOnShow(game, film));
  }
  return cards;
}

}  // namespace tb
