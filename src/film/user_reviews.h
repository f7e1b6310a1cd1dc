#pragma once

// What audiences think of a title, as its page shows it: how the ratings spread over the stars, and a few
// reviews. Derived from the frozen scores whenever the page opens, never saved.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

inline constexpr std::size_t starsOfRating = 10;

// A review by somebody of the audience.
struct Reviews {
  std::string username;
  std::int64_t rating = 0;  // 1 to 10 stars
  std::string snippet;      // the heading
  std::string review;
  bool operator==(const Reviews&) const = default;
};

// How many ratings the page speaks of: more than were given, and the more the critics liked the title.
[[nodiscard]] std::int64_t shownRatings(const Film& film);

// How many of the title's ratings fell on each of 1 to 10 stars; they add up to `numImbdRatings`.
using StarHistogram = std::array<std::int64_t, starsOfRating>;
[[nodiscard]] StarHistogram starHistogram(const Film& film);

// Up to five reviews, each of a number of stars that at least one rating in twenty gave; none before the
// release.
[[nodiscard]] std::vector<Reviews> drawUserReviews(Game& game, const Film& film,
                                                   const StarHistogram& histogram);

// The short opinions on a title of one of five levels of liking, 0 to 4.
[[nodiscard]] Bank snippetsOfLevel(std::size_t level);

// The name under which somebody of the audience writes.
[[nodiscard]] std::string drawHandle(RandomSource& random);

}  // namespace tb
