#include "wealth/weekly_balance.h"

#include <gtest/gtest.h>

#include "core/save.h"
#include "tests/scratch_game.h"
#include "wealth/patron_pay.h"

namespace tb {
namespace {

constexpr std::int64_t now = 60;

struct Balance : testing::Test, test::ScratchGame {
  WorldState& world = game.world;

  Balance() {
    world.yearNumber = 2027;
    world.weekNumberForTracking = now;
  }

  void earn(std::int64_t week, double session, double buyout, double residual) {
    world.saveAllWeeklyEarnings.push_back({.sessionEarned = session,
                                           .buyoutEarned = buyout,
                                           .residualsEarned = residual,
                                           .weekNumberForTracking = week});
  }

  void review(std::size_t count, std::int64_t newestWeek) {
    world.saveAllMovieReviews.clear();
    for (std::size_t older = 0; older < count; ++older) {
      world.saveAllMovieReviews.push_back(
          {.weekNumberForTracking = newestWeek - static_cast<std::int64_t>(older)});
    }
  }

  std::vector<std::string> tiles() {
    std::vector<std::string> titles;
    for (const Analytics& tile : world.weekBalanceItems) titles.push_back(tile.title);
    return titles;
  }
};

TEST_F(Balance, EveryKindOfIncomeReachesTheCashOnce) {
  world.saveAllWeeklyLineItems = {{.amount = 50}, {.amount = 20}, {.amount = 7, .isExpense = false}};
  earn(now - 1, 5000, 5000, 5000);
  earn(now, 1000, 200, 0);
  earn(now, 0, 0, 30);
  earn(now + 1, 5000, 5000, 5000);
  world.saveAllEquityPayouts = {{.weekNumberForTracking = now - 1, .payOut = 5000},
                                {.weekNumberForTracking = now, .payOut = 400}};
  world.saveAllRoyaltyPayouts = {{.weekNumberForTracking = now, .payout = 80},
                                 {.weekNumberForTracking = now + 1, .payout = 5000}};
  world.saveAllCameos = {{.weekNumberForTracking = now, .totalPriceEarned = 5},  // of the career before
                         {.weekNumberForTracking = 900, .totalPriceEarned = 5000},
                         {.weekNumberForTracking = now, .totalPriceEarned = 20}};
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
  EXPECT_EQ(store.value("totalCashAvailable"), plist::Value{world.totalCashAvailable});
  EXPECT_EQ(store.value("yearToDatePaycheck"), plist::Value{world.yearToDatePaycheck});
}

TEST_F(Balance, BillsAreStillDueWithoutCash) {
  world.saveAllWeeklyLineItems = {{.amount = 50}};
  world.platformSalary = 51;
  world.totalCashAvailable = 20;
  const WeekBalance balance = balanceWeek(game);
  EXPECT_EQ(balance.income, 0);
  EXPECT_EQ(world.totalCashAvailable, -30);
  EXPECT_EQ(world.weekNetIncome, 0);  // expenses are no part of it
  EXPECT_TRUE(world.weekBalanceItems.empty());
  EXPECT_TRUE(world.activityTracker.empty());
}

TEST_F(Balance, APaidSessionAndAReleaseOfTheWeekAreFoundInOnePass) {
  world.saveAllAuditionList = {
      {.weekToWork = now - 1, .weekReleased = now - 1, .payment = 800, .funnelStage = stage::wrapped}};
  EXPECT_EQ(balanceWeek(game).income, 800);
  EXPECT_TRUE(world.releaseOffered);
}

TEST_F(Balance, PatronStartsWithTheTenthReview) {
  world.totalFans = 1000;
  world.saveFameLevel = 100;
  review(9, now);
  EXPECT_EQ(balanceWeek(game).income, 0);
  EXPECT_FALSE(store.contains("trackPatronEarnings"));
  review(10, now);
  EXPECT_DOUBLE_EQ(balanceWeek(game).income, 2.5);
  EXPECT_DOUBLE_EQ(world.totalPatronEarnings, 2.5);
  EXPECT_EQ(tiles(), (std::vector<std::string>{"PATRON"}));
  EXPECT_EQ(world.WeekFeed, (TextList{"You received your first weekly payment from Patron - $2.50"}));
  EXPECT_DOUBLE_EQ(world.weekNetIncome, 2.5);
  static_cast<void>(balanceWeek(game));
  EXPECT_EQ(world.WeekFeed.size(), 1U);
  EXPECT_EQ(world.trackPatronEarnings.size(), 2U);
}

TEST_F(Balance, PatronFadesOverTwoHundredWeeksFromTheNewestReview) {
  world.totalFans = 1000;
  world.saveFameLevel = 100;
  review(10, now - 100);
  EXPECT_DOUBLE_EQ(payPatron(game), 1.25);
  review(10, now - 200);
  EXPECT_EQ(payPatron(game), 0);
  review(10, now - 201);
  EXPECT_EQ(payPatron(game), 0);
}

TEST_F(Balance, PatronPaysAtMostTenThousandFadedOnce) {
  world.totalFans = 4'000'000;  // exactly at the limit while fresh
  world.saveFameLevel = 100;
  review(10, now);
  EXPECT_DOUBLE_EQ(payPatron(game), 10'000);
  world.totalFans = 40'000'000;
  EXPECT_DOUBLE_EQ(payPatron(game), 10'000);
  review(10, now - 100);
  EXPECT_DOUBLE_EQ(payPatron(game), 5'000);
  world.totalFans = 4'000'000;  // 10,000 after the fading: not cut
  world.saveFameLevel = 150;
  EXPECT_DOUBLE_EQ(payPatron(game), 7'500);
}

TEST_F(Balance, PatronBelowADollarHasNoTileAndItsHistoryTwoYears) {
  world.totalFans = 399;
  world.saveFameLevel = 100;
  review(10, now);
  for (int week = 0; week < 106; ++week) payPatron(game);
  EXPECT_TRUE(world.weekBalanceItems.empty());
  EXPECT_EQ(world.trackPatronEarnings.size(), 104U);
  world.totalFans = 400;
  payPatron(game);
  EXPECT_EQ(tiles(), (std::vector<std::string>{"PATRON"}));
}

// Whatever the weeks bring, the cash is what the books say.
TEST_F(Balance, CashIsTheSumOfTheBooksOverManyWeeks) {
  world.isSAG = 1;
  world.saveAllWeeklyLineItems = {{.amount = 50}, {.amount = 20}};
  world.weeklyJobIncome = 310.25;
  double rest = 0;  // what no record tells: the job and the bills
  for (std::int64_t week = 1; week <= 300; ++week) {
    world.weekNumberForTracking = week;
    world.weekNetIncome = 0;
    if (week % 3 == 0) {
      world.saveAllAuditionList.push_back(
          {.filmId = week,
           .typeOfFilm = week % 2 == 0 ? filmType::commercial : filmType::feature,
           .weekToWork = week,
           .weekReleased = week + 2,
           .payment = 1234.56 + static_cast<double>(week),
           .buyout = 77.7,
           .residual = 0.0333,
           .funnelStage = stage::wrapped});
    }
    if (week % 7 == 0)
      world.saveAllRoyaltyPayouts.push_back({.weekNumberForTracking = week + 1, .payout = 99.99});
    if (week % 11 == 0)
      world.saveAllEquityPayouts.push_back({.weekNumberForTracking = week, .payOut = 1000.01});
    static_cast<void>(balanceWeek(game));
    rest += 310.25 - 70;
  }
  double books = rest;
  for (const WeeklyEarnings& line : world.saveAllWeeklyEarnings) {
    books += line.sessionEarned + line.buyoutEarned + line.residualsEarned + line.royaltyEarned;
  }
  for (const RoyaltyPayout& line : world.saveAllRoyaltyPayouts) {
    if (line.weekNumberForTracking <= 300) books += line.payout;
  }
  for (const EquityPayout& line : world.saveAllEquityPayouts) books += line.payOut;
  EXPECT_GT(world.saveAllWeeklyEarnings.size(), 500U);
  EXPECT_NEAR(world.totalCashAvailable, books, 0.005);
}

}  // namespace
}  // namespace tb
