#pragma once

// The audience from week to week. Titles bring fans by film/fan_gain.h.

#include "core/game.h"

namespace tb {

// `trackFans` keeps this many entries after the weekly step.
inline constexpr std::size_t trackedFans = 36;

// Gains or loses a few fans, by `overallTalent()`. A performer with up to 1,000 fans loses none. A change is
// appended to `trackFans`. Runs every week.
void driftFans(Game& game);

// In every fourth week of the year: gains up to 5 percent of the fans in 11 of 101 cases, loses up to 5
// percent in 11 others, and does nothing otherwise. Does nothing while `trackFans` is empty.
void swingFans(Game& game);

}  // namespace tb
