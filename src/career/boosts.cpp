#include "career/boosts.h"

#include "core/find.h"
#include "core/house_notices.h"
#include "film/promotion.h"

namespace tb {

namespace {

constexpr std::int64_t maxBoosts = 9;  // of each kind
constexpr double fullRating = 100;
constexpr double boostPoints = 1.5;

// Energy prices rise with each boost: 4 to 16 for rehearsals, 17 to 31 on set.
std::int64_t priceOf(std::int64_t bought, std::int64_t firstStep, double factor) {
  return static_cast<std::int64_t>(static_cast<double>(bought + firstStep) * factor);
}
std::int64_t rehearsalPrice(std::int64_t bought) { return priceOf(bought, 3, 1.5); }
std::int64_t performancePrice(std::int64_t bought) { return priceOf(bought, 10, 1.75); }

bool canRehearse(const Audition& project, std::int64_t now) {
  return project.rehearsalBoostCount < maxBoosts && project.rehearsalRating < fullRating &&
         now <= project.weekAudition;
}

bool canPerform(const Audition& project, std::int64_t now) {
  return project.performanceBoostCount < maxBoosts && project.performanceRating < fullRating &&
         now <= project.weekToWork;
}

bool canPromote(const Audition& project, std::int64_t now) {
  return project.typeOfFilm <= filmType::series && project.promoteHypeCount == 0 &&
         project.isPrincipal == rolePart::principal && now < project.weekReleased;
}

}  // namespace

std::optional<Boost> boostOf(const WorldState& world, const Audition& project) {
  const std::int64_t now = world.weekNumberForTracking;
  if (project.funnelStage == funnel::invited && canRehearse(project, now)) {
    return Boost{.kind = BoostKind::rehearse, .energyPrice = rehearsalPrice(project.rehearsalBoostCount)};
  }
  if (project.funnelStage == funnel::booked && canPerform(project, now)) {
    return Boost{.kind = BoostKind::performance,
                 .energyPrice = performancePrice(project.performanceBoostCount)};
  }
  if (project.funnelStage == funnel::wrapped && canPromote(project, now)) {
    return Boost{.kind = BoostKind::promote, .energyPrice = promotionEnergy};
  }
  return std::nullopt;
}

Refusal boostRefusal(const WorldState& world, const Boost& boost) {
  if (world.totalEnergyAvailable >= boost.energyPrice) return {};
  return notEnoughEnergy("\nYou don't have the energy for this right now.");
}

Refusal buyBoost(Game& game, std::int64_t filmId) {
  WorldState& world = game.world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!index) return {};
  const auto boost = boostOf(world, world.saveAllAuditionList[*index]);
  if (!boost) return {};
  if (Refusal refusal = boostRefusal(world, *boost)) return refusal;

  world.totalEnergyAvailable -= boost->energyPrice;
  Audition& project = world.saveAllAuditionList.edit(*index);
  switch (boost->kind) {
    case BoostKind::rehearse:
      project.rehearsalRating += boostPoints;
      project.rehearsalBoostCount += 1;
      break;
    case BoostKind::performance:
      project.performanceRating += boostPoints;
      project.performanceBoostCount += 1;
      break;
    case BoostKind::promote:
      world.selectedAuditionIndex = static_cast<std::int64_t>(*index);
      break;
  }
  return {};
}

}  // namespace tb
