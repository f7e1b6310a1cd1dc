#include "wealth/patron_pay.h"

#include <algorithm>

#include "core/log.h"
#include "core/number_style.h"

namespace tb {

namespace {

constexpr double weeksOfInterest = 200;
constexpr double subscribersPerFan = 0.0005;  // at maximum fame
constexpr double subscription = 5;            // dollars per week
constexpr double fullFame = 100;
constexpr double maxPerWeek = 10'000;  // dollars per week
constexpr double minTileAmount = 1;
constexpr std::size_t keptWeeks = 104;

}  // namespace

double patronInterest(const WorldState& world) {
  if (world.saveAllMovieReviews.empty()) return 0;
  const std::int64_t newest = world.saveAllMovieReviews.front().weekNumberForTracking;
  const auto weeks = static_cast<double>(world.weekNumberForTracking - newest);
  return std::max(weeksOfInterest - weeks, 0.0) / weeksOfInterest;
}

double patronSubscriptions(const WorldState& world) {
  if (world.saveAllMovieReviews.size() < patronReviews) return 0;
  const double fading = patronInterest(world);
  const double fame = static_cast<double>(world.saveFameLevel) / fullFame;
  const double payment =
      static_cast<double>(world.totalFans) * subscribersPerFan * fame * subscription * fading;
  return payment <= maxPerWeek ? payment : maxPerWeek * fading;
}

double payPatron(Game& game) {
  WorldState& world = game.world;
  if (world.saveAllMovieReviews.size() < patronReviews) return 0;
  const double payment = patronSubscriptions(world);
  if (world.trackPatronEarnings.empty()) {
    logLine(world, {NewsKind::payday, 0, payment},
            "You received your first weekly payment from Patron - " + shortMoney(game.locale, payment));
  }
  world.totalPatronEarnings += payment;
  world.trackPatronEarnings.push_back(payment);
  if (world.trackPatronEarnings.size() > keptWeeks) world.trackPatronEarnings.pop_front();
  if (payment >= minTileAmount) {
    world.weekBalanceItems.push_back({.isCurrency = 1,
                                      .title = "PATRON",
                                      .moneyEarned = payment,
                                      .subtitle = "Subscription income from your film reviews"});
  }
  return payment;
}

}  // namespace tb
