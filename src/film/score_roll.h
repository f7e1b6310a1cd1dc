#pragma once

// The scores of a title, drawn once in the week of its release. The range depends on the director only, not
// on the performer's talent.

#include <cstdint>
#include <string>

#include "core/game.h"

namespace tb {

struct Scores {
  double imbdRating = 0;           // up to 10
  std::int64_t imbdMetascore = 0;  // up to 100
  std::int64_t numImbdRatings = 0;
  std::int64_t numMetascoreRatings = 0;
  std::string featuredReview;  // empty for directors outside the table
};

[[nodiscard]] Scores rollScores(Game& game, const Audition& project);

// The highest rating of an ordinary draw for a director, 1 and up.
[[nodiscard]] double topRating(std::int64_t directorRating);

}  // namespace tb
