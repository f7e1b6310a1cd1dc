#include "life/energy.h"

#include <algorithm>

#include "career/classes.h"

namespace tb {

namespace {

// The first principal roles that run at once cost nothing; each further one costs a point a week.
constexpr std::int64_t rolesWithoutStress = 5;

}  // namespace

std::int64_t stressOfManyRoles(const WorldState& world, std::int64_t week) {
  const auto is_running = [week](const Audition& audition) {
    return audition.funnelStage == funnel::booked ||
           (audition.funnelStage == funnel::invited && audition.weekAudition >= week);
  };
  const auto roles = std::ranges::count_if(world.saveAllAuditionList, [&](const Audition& audition) {
    return audition.didAct == 1 && audition.isPrincipal == rolePart::principal && is_running(audition);
  });
  return std::max<std::int64_t>(roles, rolesWithoutStress) - rolesWithoutStress;
}

std::int64_t weeklyEnergyDrain(const WorldState& world, std::int64_t week) {
  return world.childEnergyCost + world.weeklyEnergyCost + classEnergy(world) +
         stressOfManyRoles(world, week) + world.platformEnergyCost;
}

void refillEnergy(Game& game) {
  WorldState& world = game.world;
  // Whoever holds more than the ceiling keeps the surplus, and is not refilled.
  const std::int64_t full = std::max(world.totalEnergyMax, world.totalEnergyAvailable);
  // The auditions of the week that ends are over, and the clock still shows it.
  const std::int64_t coming_week = world.weekNumberForTracking + 1;
  world.totalEnergyAvailable = std::max<std::int64_t>(full - weeklyEnergyDrain(world, coming_week), 0);
}

void ageEnergyCeiling(WorldState& world) {
  constexpr std::int64_t lowestCeiling = 25;
  constexpr std::int64_t ageOfDoubleLoss = 40;
  const std::int64_t loss = world.ageCount >= ageOfDoubleLoss ? 2 : 1;
  world.totalEnergyMax = std::max(world.totalEnergyMax - loss, lowestCeiling);
  world.saveAgeLoss -= loss;
}

}  // namespace tb
