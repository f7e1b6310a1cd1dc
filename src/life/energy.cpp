#include "life/energy.h"

#include <algorithm>

#include "career/classes.h"
#include "life/partner.h"

namespace tb {

namespace {

// Principal roles at the same time without stress; each further one costs a point per week.
constexpr std::int64_t maxRolesWithoutStress = 5;

constexpr std::int64_t firstMaximum = 100;  // of a first career

std::int64_t agedMaximum(std::int64_t maximum, std::int64_t loss) {
  constexpr std::int64_t minEnergyMax = 25;
  return std::max(maximum - loss, minEnergyMax);
}

// At the birthday of this age.
std::int64_t lossAt(std::int64_t age) {
  constexpr std::int64_t doubleLossAge = 40;
  return age >= doubleLossAge ? 2 : 1;
}

template <class Thing>
std::int64_t bonusOfPrimary(const List<Thing>& things) {
  std::int64_t bonus = 0;
  for (const Thing& thing : things) bonus += thing.isPrimary == 1 ? thing.energyBonus : 0;
  return bonus;
}

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

EnergyDrains energyDrains(const WorldState& world, std::int64_t week) {
  return {.job = world.weeklyEnergyCost,
          .classes = classEnergy(world),
          .children = world.childEnergyCost,
          .roles = manyRolesStress(world, week),
          .platform = world.platformEnergyCost};
}

EnergySources energySources(const WorldState& world) {
  EnergySources sources{.base = firstMaximum + world.permanentEnergyUpgrade,
                        .age = world.saveAgeLoss,
                        .drama = -world.energyLossExDrama,
                        .checkups = world.annualCheckupTotal,
                        .properties = bonusOfPrimary(world.saveAllPropertyList),
                        .vehicles = bonusOfPrimary(world.saveAllTransportationOwnedList)};
  for (const WeeklyLineItem& item : world.saveAllWeeklyLineItems) sources.subscriptions += item.energyBoost;
  if (const Matches* const partner = currentPartner(world)) sources.relationships = partner->energyBonus;
  sources.other = world.totalEnergyMax - sources.base - sources.age - sources.drama - sources.checkups -
                  sources.subscriptions - sources.properties - sources.vehicles - sources.relationships;
  return sources;
}

void refillEnergy(Game& game) {
  WorldState& world = game.world;
  // Energy above the maximum is kept, and is not refilled.
  const std::int64_t full = std::max(world.totalEnergyMax, world.totalEnergyAvailable);
  // The clock still shows the week that is ending, whose auditions are over.
  const std::int64_t comingWeek = world.weekNumberForTracking + 1;
  world.totalEnergyAvailable = std::max<std::int64_t>(full - energyDrains(world, comingWeek).sum(), 0);
}

void ageEnergyCeiling(WorldState& world) {
  const std::int64_t loss = lossAt(world.ageCount);
  world.totalEnergyMax = agedMaximum(world.totalEnergyMax, loss);
  world.saveAgeLoss -= loss;
}

std::vector<std::int64_t> maximumAtBirthdays(const WorldState& world, std::int64_t lastAge) {
  std::vector<std::int64_t> maxima;
  std::int64_t maximum = world.totalEnergyMax;
  for (std::int64_t age = world.ageCount + 1; age <= lastAge; ++age) {
    maximum = agedMaximum(maximum, lossAt(age));
    maxima.push_back(maximum);
  }
  return maxima;
}

}  // namespace tb
