#include "film/user_reviews.h"

#include <cmath>
#include <numeric>

#include "banks/critics_banks.h"
#include "banks/user_reviews_banks.h"
#include "core/descending.h"
#include "film/review_words.h"

namespace tb {

namespace {

using StarShares = std::array<double, starsOfRating>;

constexpr double ratingSpread = 2;             // stars
constexpr double randomRatingShare = 0.08;     // share of ratings that are spread evenly
constexpr double shownAtZeroMetascore = 1.18;  // shown ratings per given rating at a metascore of 0
constexpr std::size_t maxReviews = 5;
constexpr int drawsForReviews = 25;
constexpr std::int64_t ratingsPerReview = 20;  // one rating in twenty

// Banks of audience reviews for 1-2, 3-4, 5-6, 7-8 and 9-10 stars.
struct LevelBanks {
  Bank snippets;
  Bank bodies;
};
constexpr std::array<LevelBanks, 5> levels = {{
    {.snippets = bank::userReviewSnippet1, .bodies = bank::userReviewBody1},
    {.snippets = bank::userReviewSnippet2, .bodies = bank::userReviewBody2},
    {.snippets = bank::userReviewSnippet3, .bodies = bank::userReviewBody3},
    {.snippets = bank::userReviewSnippet4, .bodies = bank::userReviewBody4},
    {.snippets = bank::userReviewSnippet5, .bodies = bank::userReviewBody5},
}};

void normalise(StarShares& shares) {
  const double sum = std::accumulate(shares.begin(), shares.end(), 0.0);
  for (double& share : shares) share /= sum;
}

// A bell curve around the title's rating plus an even share.
StarShares sharesOfStars(double rating) {
  StarShares shares{};
  for (std::size_t star = 0; star < starsOfRating; ++star) {
    const double distance = (static_cast<double>(star + 1) - rating) / ratingSpread;
    shares[star] = std::exp(-0.5 * distance * distance);
  }
  normalise(shares);
  constexpr double evenShare = 1.0 / starsOfRating;
  for (double& share : shares) share = randomRatingShare * evenShare + (1 - randomRatingShare) * share;
  normalise(shares);
  return shares;
}

// Only star counts with enough ratings get reviews, so that a flop has no praise.
bool hasReviewers(const StarHistogram& histogram, std::size_t star) {
  const std::int64_t ratings = std::accumulate(histogram.begin(), histogram.end(), std::int64_t{0});
  return histogram[star] > 0 && histogram[star] * ratingsPerReview >= ratings;
}

Reviews reviewOf(Game& game, const Film& film, std::size_t star) {
  const LevelBanks& level = levels[star / 2];
  Reviews review{.rating = static_cast<std::int64_t>(star + 1)};
  review.snippet = drawReview(game, level.snippets, film);
  review.review = drawReview(game, level.bodies, film);
  review.username = drawHandle(game.random);
  return review;
}

}  // namespace

std::int64_t shownRatings(const Film& film) {
  const double factor = static_cast<double>(film.imbdMetascore) / 100 + shownAtZeroMetascore;
  return static_cast<std::int64_t>(static_cast<double>(film.numImbdRatings) * factor);
}

StarHistogram starHistogram(const Film& film) {
  StarHistogram counts{};
  StarShares fractions = sharesOfStars(film.imbdRating);
  std::int64_t left = film.numImbdRatings;
  for (std::size_t star = 0; star < starsOfRating; ++star) {
    const double exact = fractions[star] * static_cast<double>(film.numImbdRatings);
    counts[star] = static_cast<std::int64_t>(std::floor(exact));
    fractions[star] = exact - std::floor(exact);
    left -= counts[star];
  }
  const auto order = descendingOrder(fractions);  // sorted by largest fractional remainder
  for (std::size_t turn = 0; left > 0; ++turn, --left) counts[order[turn % starsOfRating]] += 1;
  return counts;
}

std::vector<Reviews> drawUserReviews(Game& game, const Film& film, const StarHistogram& histogram) {
  std::vector<Reviews> reviews;
  if (film.numImbdRatings == 0) return reviews;
  for (int draw = 0; draw < drawsForReviews && reviews.size() < maxReviews; ++draw) {
    const auto star = static_cast<std::size_t>(RandomRange(game.random, starsOfRating));
    if (hasReviewers(histogram, star)) reviews.push_back(reviewOf(game, film, star));
  }
  return reviews;
}

Bank snippetsOfLevel(std::size_t level) { return levels[level].snippets; }

std::string drawHandle(RandomSource& random) {
  const std::string& first = drawRow(random, bank::handleFirstParts);
  return first + drawRow(random, bank::handleSecondParts);
}

}  // namespace tb
