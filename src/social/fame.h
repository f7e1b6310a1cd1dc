#pragma once

// Fame: one figure for a career, from its awards, scores, experience, image, talent, audience and returns.

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/game.h"

namespace tb {

// The points of each part of the fame level, and the figures they come from.
struct FameParts {
  std::int64_t awards = 0;      // 0 to 10
  std::int64_t rating = 0;      // 0 to 10
  std::int64_t experience = 0;  // 0 and up
  std::int64_t image = 0;       // up to 10
  std::int64_t talent = 0;      // 0 and up
  double fans = 0;              // 0 to 14
  double retention = 0;         // 10 for an audience that stays to the finale
  double returns = 0;           // 0 to 25

  std::int64_t wins = 0;         // the performer's own
  std::int64_t nominations = 0;  // the same, including those that won
  double meanRating = 0;         // 0 to 10, of released titles with a principal part
  std::int64_t films = 0;        // feature films among these
  double gross = 0;              // dollars, of these films
  double budgets = 0;            // dollars, likewise
  double stayed = 0;             // the fraction of a premiere's viewers that see the finale; can exceed 1
};

inline constexpr double experiencePerFamePoint = 1'000;
inline constexpr std::int64_t scorePerFamePoint = 10;  // of the public image and of talent

[[nodiscard]] FameParts fameParts(const WorldState& world);

// The sum of the points, each kind cut to a whole number except the last three, which are cut together.
[[nodiscard]] std::int64_t fameLevel(const FameParts& parts);

// Sets `saveFameLevel`.
void updateFame(Game& game);

// "D" to "A+", and the lowest level of the next letter; nothing for "A+".
[[nodiscard]] std::string_view fameLetter(std::int64_t level);
[[nodiscard]] std::optional<std::int64_t> nextLetterFrom(std::int64_t level);

// The award score: two points a win and a quarter of a point a nomination, without a limit.
[[nodiscard]] double awardScore(const FameParts& parts);

}  // namespace tb
