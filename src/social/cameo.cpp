#include "social/cameo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "core/bands.h"
#include "core/weekly_option.h"

namespace tb {

namespace {

struct PriceBand {
  std::int64_t upTo;  // fame level
  double price;       // dollars
};

constexpr std::array<PriceBand, 11> priceBands = {{
    {.upTo = 10, .price = 10},
    {.upTo = 20, .price = 15},
    {.upTo = 30, .price = 25},
    {.upTo = 40, .price = 30},
    {.upTo = 50, .price = 40},
    {.upTo = 60, .price = 50},
    {.upTo = 70, .price = 75},
    {.upTo = 80, .price = 100},
    {.upTo = 94, .price = 125},
    {.upTo = 100, .price = 175},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .price = 200},
}};

// A discount attracts few more buyers, but a high price deters many.
constexpr double discountPower = 0.35;
constexpr double markupPower = 1.64;
constexpr double mostDemand = 1.5;
constexpr double leastDemand = 0.01;
constexpr double lowestDivisor = 1;  // dollars

// The buyers at a demand of 1: least + RandomRange(spread).
struct BuyerBand {
  std::int64_t upTo;  // fans
  std::int64_t least;
  std::int64_t spread;
};

constexpr std::array<BuyerBand, 4> buyerBands = {{
    {.upTo = 100'000, .least = 12, .spread = 14},
    {.upTo = 1'000'000, .least = 120, .spread = 131},
    {.upTo = 10'000'000, .least = 250, .spread = 251},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .least = 500, .spread = 501},
}};

constexpr double mostPerWeek = 1'000;
constexpr double reviewsPerSale = 0.1;

double sales(double demand, std::int64_t buyers) {
  return std::clamp(demand * static_cast<double>(buyers), 0.0, mostPerWeek);
}

}  // namespace

bool isCameoOpen(const WorldState& world) { return hasWeeklyOption(world, weeklyOption::theCameo); }

double fairCameoPrice(std::int64_t level) { return bandOf(priceBands, level)->price; }

double cameoDemand(double price, double fair) {
  const double ratio = fair / std::max(price, lowestDivisor);
  if (price <= fair) return std::min(std::pow(ratio, discountPower), mostDemand);
  return std::max(std::pow(ratio, markupPower), leastDemand);
}

std::int64_t mostCameoSales(std::int64_t fans, double demand) {
  if (fans < cameoFans) return 0;
  const BuyerBand& band = *bandOf(buyerBands, fans);
  return static_cast<std::int64_t>(sales(demand, band.least + band.spread - 1));
}

void setPrice(Game& game, double price) {
  game.world.setCameoPrice = price;
  game.world.cameoDemandIndex = cameoDemand(price, fairCameoPrice(game.world.saveFameLevel));
}

void cameoWeekStep(Game& game) {
  WorldState& world = game.world;
  if (world.totalFans < cameoFans || !isCameoOpen(world)) return;
  const BuyerBand& band = *bandOf(buyerBands, world.totalFans);
  const std::int64_t buyers = band.least + RandomRange(game.random, band.spread);
  const double sold = sales(world.cameoDemandIndex, buyers);
  world.numberOfCameoReviews += static_cast<std::int64_t>(sold * reviewsPerSale);
  world.saveAllCameos.push_back({.weekNumberForTracking = world.weekNumberForTracking,
                                 .yearNumber = world.yearNumber,
                                 .numberOfPurchases = static_cast<std::int64_t>(sold),
                                 .totalPriceEarned = sold * world.setCameoPrice,
                                 .averageRating = RandomUnit(game.random, 4.5, 5)});
  world.weekBalanceItems.push_back({.isCurrency = 1,
                                    .title = "CAMEO",
                                    .moneyEarned = world.saveAllCameos.back().totalPriceEarned,
                                    .subtitle = "Fan purchases of short videos via The Cameo"});
}

}  // namespace tb
