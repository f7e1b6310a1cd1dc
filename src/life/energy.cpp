#include "life/energy.h"

#include <algorithm>

#include "career/classes.h"

namespace tb {

namespace {

// Principal roles at the same time without stress; each further one costs a point per week.
constexpr std::int64_t maxRolesWithoutStress = 5;

}  // namespace

std::int64_t manyRolesStress(const WorldState& world, std::int64_t week) {
  const auto isRunning = [week](const Audition& audition) {
    return audition.funnelStage == funnel::booked ||
           (audition.funnelStage == funnel::invited && audition.weekAudition >= week);
  };
  const auto roles = std::ranges::count_if(world.saveAllAuditionList, [&](const Audition& audition) {
    return audition.didAct == 1 && audition.isPrincipal == rolePart::principal && isRunning(audition);
  });
  return std::max<std::int64_t>(roles, maxRolesWithoutStress) - maxRolesWithoutStress;
}

std::int64_t weeklyEnergyDrain(const WorldState& world, std::int64_t week) {
  return world.childEnergyCost + world.weeklyEnergyCost + classEnergy(world) + manyRolesStress(world, week) +
         world.platformEnergyCost;
}

void refillEnergy(Game& game) {
  WorldState& world = game.world;
  // Energy above the maximum is kept, and is not refilled.
  const std::int64_t full = std::max(world.totalEnergyMax, world.totalEnergyAvailable);
  // The clock still shows the week that is ending, whose auditions are over.
  const std::int64_t comingWeek = world.weekNumberForTracking + 1;
  world.totalEnergyAvailable = std::max<std::int64_t>(full - weeklyEnergyDrain(world, comingWeek), 0);
}

void ageEnergyCeiling(WorldState& world) {
  constexpr std::int64_t minEnergyMax = 25;
  constexpr std::int64_t doubleLossAge = 40;
  const std::int64_t loss = world.ageCount >= doubleLossAge ? 2 : 1;
  world.totalEnergyMax = std::max(world.totalEnergyMax - loss, minEnergyMax);
  world.saveAgeLoss -= loss;
}

}  // namespace tb
