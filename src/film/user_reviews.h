#pragma once

// The audience's opinion of a title on its page: the distribution of stars and a few reviews. Computed from
// the saved scores whenever the page opens, never saved.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

inline constexpr std::size_t starsOfRating = 10;

// An audience review.
struct Reviews {
  std::string username;
  std::int64_t rating = 0;  // 1 to 10 stars
  std::string snippet;      // the heading
  std::string review;
  bool operator==(const Reviews&) const = default;
};

// The number of ratings that the page shows. It exceeds `numImbdRatings` by a factor that grows with the
// metascore.
[[nodiscard]] std::int64_t shownRatings(const Film& film);

// The number of ratings for each of 1 to 10 stars; the sum is `numImbdRatings`.
using StarHistogram = std::array<std::int64_t, starsOfRating>;
[[nodiscard]] StarHistogram starHistogram(const Film& film);

// Up to five reviews with star counts that at least one rating in twenty has; none before the release.
[[nodiscard]] std::vector<Reviews> drawUserReviews(Game& game, const Film& film,
                                                   const StarHistogram& histogram);

// The bank of short reviews for a level from 0 (1-2 stars) to 4 (9-10 stars).
[[nodiscard]] Bank snippetsOfLevel(std::size_t level);

// Draws an audience member's user name.
[[nodiscard]] std::string drawHandle(RandomSource& random);

}  // namespace tb
