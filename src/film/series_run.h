#pragma once

// A series' season on the air: an episode a week, the first one in the week of its release.

#include "core/game.h"

namespace tb {

// The premiere. Draws its audience from the budget and the hype, and keeps the season's viewing figures; a
// project without a budget has neither. Writes `saveAllRatings`.
void premiereSeries(Game& game, const Audition& project);

// The episode of a later week, 1 to the number of episodes - 1 after the premiere: fans for the lead, and an
// audience that grows or shrinks with how good the series is and how much it is talked about. Writes
// `saveAllRatings`.
void advanceSeries(Game& game, const Audition& project, std::int64_t weeksSinceRelease);

}  // namespace tb
