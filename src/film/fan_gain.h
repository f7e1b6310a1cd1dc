#pragma once

// Fans that a title brings to its lead.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Draws the fans gained in a week of a title. `budget` is in dollars, `quality` 0 to 100, `weight` 1 for a
// release or an episode and less for other weeks of a film. Scales with `totalFans` and `agentFanBonus`.
[[nodiscard]] std::int64_t titleFanGain(Game& game, double budget, double quality, double weight);

// Adds a gain to `fanGainCarry` if the performer leads the project; else draws nothing.
void gainFansFromTitle(Game& game, const Audition& project, double quality, double weight);

}  // namespace tb
