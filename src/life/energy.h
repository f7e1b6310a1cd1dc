#pragma once

// Weekly energy: `totalEnergyMax` is the maximum, `totalEnergyAvailable` what is left, both in whole points.

#include <cstdint>
#include <vector>

#include "core/game.h"

namespace tb {

// Sets `totalEnergyAvailable` for the next week, at the end of a week.
void refillEnergy(Game& game);

// The energy cost of too many roles in `week` (a value of `weekNumberForTracking`): 0 up to five principal
// roles, then a point per role. Auditions before that week do not count, because those roles were lost.
[[nodiscard]] std::int64_t manyRolesStress(const WorldState& world, std::int64_t week);

// The fixed energy cost of a week, in points.
struct EnergyDrains {
  std::int64_t job = 0;
  std::int64_t classes = 0;
  std::int64_t children = 0;
  std::int64_t roles = 0;
  std::int64_t platform = 0;

  [[nodiscard]] std::int64_t sum() const { return job + classes + children + roles + platform; }
};
[[nodiscard]] EnergyDrains energyDrains(const WorldState& world, std::int64_t week);

// What the maximum is made of, in points, negative for a loss. The parts add up to `totalEnergyMax`.
struct EnergySources {
  std::int64_t base = 0;  // of a new career
  std::int64_t age = 0;
  std::int64_t drama = 0;  // with former partners
  std::int64_t checkups = 0;
  std::int64_t subscriptions = 0;
  std::int64_t properties = 0;
  std::int64_t vehicles = 0;
  std::int64_t relationships = 0;
  std::int64_t other = 0;  // without a record: thanks, losses that the minimum spared, forgotten checkups
};
[[nodiscard]] EnergySources energySources(const WorldState& world);

// Lowers the maximum at a birthday: by 1, from age 40 on by 2, but not below 25. `saveAgeLoss` sums the
// losses, without regard to that minimum.
void ageEnergyCeiling(WorldState& world);

// The maximum at each birthday from the next one to that of `lastAge` (years), if nothing but age changes it.
// Empty from that age on.
[[nodiscard]] std::vector<std::int64_t> maximumAtBirthdays(const WorldState& world, std::int64_t lastAge);

}  // namespace tb
