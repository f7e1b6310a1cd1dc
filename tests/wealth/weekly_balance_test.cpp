#include "wealth/weekly_balance.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t week = 60;

struct WeeklyBalance : test::RuleTest {
  WeeklyBalance() {
    world.yearNumber = 2027;
    world.weekNumberForTracking = week;
  }

  void earn(std::int64_t week, double session, double buyout, double residual) {
    world.saveAllWeeklyEarnings.push_back({.sessionEarned = session,
                                           .buyoutEarned = buyout,
                                           .residualsEarned = residual,
                                           .weekNumberForTracking = week});
  }

  std::vector<std::string> tiles() {
    std::vector<std::string> titles;
    for (const Analytics& tile : world.weekBalanceItems) titles.push_back(tile.title);
    return titles;
  }
};

TEST_F(WeeklyBalance, AddsEveryKindOfIncomeOnce) {
  world.saveAllWeeklyLineItems = {{.amount = 50}, {.amount = 20}, {.amount = 7, .isExpense = false}};
  earn(week - 1, 5000, 5000, 5000);
  earn(week, 1000, 200, 0);
  earn(week, 0, 0, 30);
  earn(week + 1, 5000, 5000, 5000);
  world.saveAllEquityPayouts = {{.weekNumberForTracking = week - 1, .payOut = 5000},
                                {.weekNumberForTracking = week, .payOut = 400}};
  world.saveAllRoyaltyPayouts = {{.weekNumberForTracking = week, .payout = 80},
                                 {.weekNumberForTracking = week + 1, .payout = 5000}};
  world.saveAllCameos = {{.weekNumberForTracking = week, .totalPriceEarned = 5},  // of the previous career
                         {.weekNumberForTracking = 900, .totalPriceEarned = 5000},
                         {.weekNumberForTracking = week, .totalPriceEarned = 20}};
  world.saveAllPropertyList = {{.weeklyRent = 300, .isPrimary = 1}, {.weeklyRent = 90, .rentEarned = 10}};
  world.platformSalary = 52 * 3 + 51;
  world.weeklyJobIncome = 410;
  world.weekNetIncome = 15;
  world.totalCashAvailable = 100;
  world.yearToDatePaycheck = 900;

  const WeekBalance balance = balanceWeek(game);
  const double net = 7 + 1000 + 200 + 400 + 80 + 25 + 90 + 3;
  EXPECT_DOUBLE_EQ(balance.income, net + 30 + 15 + 410);
  EXPECT_EQ(balance.expenses, 70);
  EXPECT_DOUBLE_EQ(world.totalCashAvailable, 100 + balance.income - 70);
  EXPECT_DOUBLE_EQ(world.weekNetIncome, 15 + net + 410);  // without the residual
  EXPECT_EQ(world.yearToDatePaycheck, 1310);              // the job alone
  EXPECT_EQ(world.saveAllPropertyList[0].rentEarned, 0);
  EXPECT_EQ(world.saveAllPropertyList[1].rentEarned, 100);
  EXPECT_EQ(tiles(), (std::vector<std::string>{"SESSIONS", "RESIDUALS", "ROYALTY", "INVEST"}));
  EXPECT_EQ(world.weekBalanceItems[0].moneyEarned, 1000);
  EXPECT_EQ(world.activityTracker, (TextList{"You received a residual check for $30.00"}));
}

TEST_F(WeeklyBalance, DeductsExpensesWithoutCash) {
  world.saveAllWeeklyLineItems = {{.amount = 50}};
  world.platformSalary = 51;
  world.totalCashAvailable = 20;
  const WeekBalance balance = balanceWeek(game);
  EXPECT_EQ(balance.income, 0);
  EXPECT_EQ(world.totalCashAvailable, -30);
  EXPECT_EQ(world.weekNetIncome, 0);  // excludes expenses
  EXPECT_TRUE(world.weekBalanceItems.empty());
  EXPECT_TRUE(world.activityTracker.empty());
}

}  // namespace
}  // namespace tb
