#pragma once

// Weekly energy: `totalEnergyMax` is the maximum, `totalEnergyAvailable` what is left, both in whole points.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Sets `totalEnergyAvailable` for the next week, at the end of a week.
void refillEnergy(Game& game);

// The energy cost of too many roles in `week` (a value of `weekNumberForTracking`): 0 up to five principal
// roles, then a point per role. Auditions before that week do not count, because those roles were lost.
[[nodiscard]] std::int64_t manyRolesStress(const WorldState& world, std::int64_t week);

// The fixed energy cost of a week: children, job, classes, too many roles, platform. 0 and up.
[[nodiscard]] std::int64_t weeklyEnergyDrain(const WorldState& world, std::int64_t week);

// Lowers the maximum at a birthday: by 1, from age 40 on by 2, but not below 25. `saveAgeLoss` sums the
// losses, without regard to that minimum.
void ageEnergyCeiling(WorldState& world);

}  // namespace tb
