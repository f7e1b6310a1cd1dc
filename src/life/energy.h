#pragma once

// Energy, the budget of the week: `totalEnergyMax` is the ceiling, `totalEnergyAvailable` what is left, both
// in whole points.

#include <cstdint>

#include "core/game.h"

namespace tb {

// The refill at the end of a week: sets `totalEnergyAvailable` for the coming one and writes it.
void refillEnergy(Game& game);

// What too many roles at once take in a week, a value of `weekNumberForTracking`: nothing up to five
// principal roles, then a point for each further one. Of the auditions those count that are not before that
// week, for a role that was not got is not running. 0 and up.
[[nodiscard]] std::int64_t stressOfManyRoles(const WorldState& world, std::int64_t week);

// What that week takes before the player does anything: children, the job, running classes, too many roles at
// once, the platform. 0 and up.
[[nodiscard]] std::int64_t weeklyEnergyDrain(const WorldState& world, std::int64_t week);

// A birthday lowers the ceiling: by 1, from 40 on by 2. `saveAgeLoss` keeps the sum. The ceiling never falls
// below 25, and the sum is not corrected for that floor. Writes nothing.
void ageEnergyCeiling(WorldState& world);

}  // namespace tb
