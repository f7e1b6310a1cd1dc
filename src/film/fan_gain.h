#pragma once

// Fans that titles bring to their lead.

#include <cstdint>

#include "core/game.h"

namespace tb {

// How many fans one week of a title brings. `budget` in dollars, `quality` 0 to 100, `weight` 1 for a release
// and for an episode, less for the weeks of a film's run. Scales with `totalFans` and `agentFanBonus`.
[[nodiscard]] std::int64_t titleFanGain(Game& game, double budget, double quality, double weight);

// Adds such a gain to `fanGainCarry` when the performer leads the project, and draws nothing otherwise.
void gainFansOfTitle(Game& game, const Audition& project, double quality, double weight);

}  // namespace tb
