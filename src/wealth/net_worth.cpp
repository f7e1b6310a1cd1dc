#include "wealth/net_worth.h"

#include "platform/share_register.h"

namespace tb {

namespace {

constexpr double vehicleLossAYear = 0.025;  // fraction of the price paid

double cardsValue(const WorldState& world) {
  return world.trackCardPortfolio.empty() ? 0 : static_cast<double>(world.trackCardPortfolio.back());
}

double propertiesValue(const WorldState& world) {
  double sum = 0;
  for (const Property& property : world.saveAllPropertyList) sum += propertyValue(world, property);
  return sum;
}

double vehiclesValue(const WorldState& world) {
  double sum = 0;
  for (const Transportation& vehicle : world.saveAllTransportationOwnedList) {
    sum += vehicleValue(world, vehicle);
  }
  return sum;
}

// The player's fraction of each active venture, at the valuation of its last resolved round.
double venturesValue(const WorldState& world) {
  double sum = 0;
  for (const SharkBoxDeal& deal : world.saveSharkBoxDeals) {
    const bool valued = deal.roundsResolved > 0 && deal.roundsResolved <= std::ssize(deal.rounds);
    if (deal.status != ventureStatus::active || !valued) continue;
    sum += deal.equity * deal.rounds[static_cast<std::size_t>(deal.roundsResolved - 1)].valuation;
  }
  return sum;
}

// The last valuation (every fourth week); before the first one, the company's cash.
double companyValue(const WorldState& world) {
  if (!world.trackBusinessValuation.empty()) {
    return static_cast<double>(world.trackBusinessValuation.back());
  }
  return world.platformCashAvailable + static_cast<double>(world.platformInfrastureValue);
}

double platformStake(const WorldState& world) {
  return world.isPlatformLaunched == 1 ? ownPlatformFraction(world) * companyValue(world) : 0;
}

}  // namespace

// An index change of 0.1 changes the value by a tenth of the price paid.
double propertyValue(const WorldState& world, const Property& property) {
  return property.pricePaid * (world.realEstateIndex - property.realEstateIndex + 1);
}

double vehicleValue(const WorldState& world, const Transportation& vehicle) {
  const auto years = static_cast<double>(world.yearNumber - vehicle.yearPurchased);
  return vehicle.pricePaid * (world.realEstateIndex / vehicle.economyIndex) -
         years * vehicleLossAYear * vehicle.pricePaid;
}

NetWorth netWorth(const WorldState& world) {
  return {.cash = world.totalCashAvailable,
          .cards = cardsValue(world),
          .property = propertiesValue(world),
          .vehicles = vehiclesValue(world),
          .ventures = venturesValue(world),
          .platform = platformStake(world)};
}

void updateNetWorth(Game& game) { game.world.saveNetworth = netWorth(game.world).total(); }

}  // namespace tb
