#include "wealth/weekly_balance.h"

#include <array>
#include <string_view>

#include "core/log.h"
#include "core/number_style.h"
#include "film/new_releases.h"
#include "wealth/filming_pay.h"
#include "wealth/line_items.h"
#include "wealth/patron_pay.h"

namespace tb {

namespace {

constexpr std::int64_t weeksOfSalary = 52;

// Sums of the week's records by kind, in dollars.
struct Earned {
  double sessions = 0;
  double buyouts = 0;
  double residuals = 0;
  double shares = 0;  // always 0: exists for the save format only
  double royalties = 0;
  double equity = 0;
  double cameos = 0;
};

// Collects rent from homes that are not the residence and adds it to each home's total.
double collectRent(Game& game) {
  List<Property>& properties = game.world.saveAllPropertyList;
  double rent = 0;
  for (std::size_t index = 0; index < properties.size(); ++index) {
    if (properties[index].isPrimary == 1) continue;
    Property& let = properties.edit(index);
    let.rentEarned += let.weeklyRent;
    rent += let.weeklyRent;
  }
  return rent;
}

// Records are in the order of their weeks, so a week's records are together near the end of the list.
template <class Record, class Add>
void forEachOfWeek(const List<Record>& records, std::int64_t week, const Add& add) {
  for (std::size_t index = records.size(); index-- > 0;) {
    const Record& record = records[index];
    if (record.weekNumberForTracking < week) return;
    if (record.weekNumberForTracking == week) add(record);
  }
}

// Cameo sales and their dates survive a restart, so a new career is paid for the previous career's sales
// again in the same weeks, on purpose.
double cameoSales(const WorldState& world) {
  double sum = 0;
  for (const Cameos& sold : world.saveAllCameos) {
    if (sold.weekNumberForTracking == world.weekNumberForTracking) sum += sold.totalPriceEarned;
  }
  return sum;
}

Earned earnedThisWeek(const WorldState& world) {
  const std::int64_t week = world.weekNumberForTracking;
  Earned earned{.cameos = cameoSales(world)};
  forEachOfWeek(world.saveAllWeeklyEarnings, week, [&](const WeeklyEarnings& line) {
    earned.sessions += line.sessionEarned;
    earned.buyouts += line.buyoutEarned;
    earned.residuals += line.residualsEarned;
    earned.shares += line.royaltyEarned;
  });
  forEachOfWeek(world.saveAllRoyaltyPayouts, week,
                [&](const RoyaltyPayout& line) { earned.royalties += line.payout; });
  forEachOfWeek(world.saveAllEquityPayouts, week,
                [&](const EquityPayout& line) { earned.equity += line.payOut; });
  return earned;
}

// Whole dollars.
double platformPay(const WorldState& world) {
  const std::int64_t salary = world.platformSalary / weeksOfSalary;
  return salary < 1 ? 0 : static_cast<double>(salary);
}

struct Tile {
  std::string_view title;
  double Earned::* amount;
  std::string_view subtitle;
};

constexpr std::array<Tile, 4> tiles = {{
    {"SESSIONS", &Earned::sessions, "Session payments upon completed filming"},
    {"RESIDUALS", &Earned::residuals, "Residuals paid from syndicated media"},
    {"ROYALTY", &Earned::royalties, "Royalties from media where you took a stake rather than payment"},
    {"INVEST", &Earned::equity, "Payouts from investments in film productions"},
}};

void addTiles(WorldState& world, const Earned& earned) {
  for (const Tile& tile : tiles) {
    if (earned.*tile.amount <= 0) continue;
    world.weekBalanceItems.push_back({.isCurrency = 1,
                                      .title = std::string(tile.title),
                                      .moneyEarned = earned.*tile.amount,
                                      .subtitle = std::string(tile.subtitle)});
  }
}

void logResiduals(Game& game, double residuals) {
  if (residuals <= 0) return;
  logActivity(game.world, "You received a residual check for " + shortMoney(game.locale, residuals));
}

}  // namespace

WeekBalance balanceWeek(Game& game) {
  WorldState& world = game.world;
  WeekBalance balance{.expenses = standingExpenses(world)};
  double recurring = standingIncome(world);
  offerRelease(world);
  payFilming(game);
  recurring += payPatron(game);
  const double rent = collectRent(game);
  const Earned earned = earnedThisWeek(world);
  addTiles(world, earned);

  const double net = recurring + earned.equity + earned.cameos + platformPay(world) + earned.sessions +
                     earned.buyouts + earned.shares + rent + earned.royalties;
  balance.income = net + earned.residuals + world.weekNetIncome + world.weeklyJobIncome;
  world.weekNetIncome += net + world.weeklyJobIncome;
  world.yearToDatePaycheck += world.weeklyJobIncome;
  logResiduals(game, earned.residuals);
  world.totalCashAvailable += balance.income - balance.expenses;
  return balance;
}

}  // namespace tb
