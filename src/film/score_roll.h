#pragma once

// What the world thinks of a title, rolled once, in the week of its release. The director alone sets the
// range; the performer's talent has no part in it.

#include <cstdint>
#include <string>

#include "core/game.h"

namespace tb {

struct Scores {
  double imbdRating = 0;           // up to 10
  std::int64_t imbdMetascore = 0;  // up to 100
  std::int64_t numImbdRatings = 0;
  std::int64_t numMetascoreRatings = 0;
  std::string featuredReview;  // empty for directors beyond the scale
};

[[nodiscard]] Scores rollScores(Game& game, const Audition& project);

// The rating that a director can reach in an ordinary roll, 1 and up.
[[nodiscard]] double topRating(std::int64_t directorRating);

}  // namespace tb
