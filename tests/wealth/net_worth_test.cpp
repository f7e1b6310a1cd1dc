#include "wealth/net_worth.h"

#include <gtest/gtest.h>

#include "platform/share_register.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using NetWorthSum = test::RuleTest;

TEST_F(NetWorthSum, AddsAllParts) {
  world.totalCashAvailable = -500;
  world.trackCardPortfolio = {10, 40};
  world.realEstateIndex = 1.2;
  world.saveAllPropertyList = {{.pricePaid = 1000, .realEstateIndex = 0.9},
                               {.pricePaid = 2000, .realEstateIndex = 1.4}};
  world.saveSharkBoxDeals = {
      {.equity = 0.1,
       .rounds = {{.valuation = 1000}, {.valuation = 3000}, {.valuation = 9000}},
       .roundsResolved = 2},
      {.equity = 0.5, .rounds = {{.valuation = 1000}}, .roundsResolved = 1, .status = ventureStatus::exited}};
  updateNetWorth(game);
  EXPECT_DOUBLE_EQ(world.saveNetworth, -500 + 40 + 1300 + 1600 + 300);
}

TEST_F(NetWorthSum, VehiclesLoseValueBelowZero) {
  const Transportation car{.pricePaid = 30'000, .economyIndex = 1, .yearPurchased = 2026};
  world.yearNumber = 2026;
  EXPECT_DOUBLE_EQ(vehicleValue(world, car), 30'000);
  world.yearNumber = 2066;
  EXPECT_NEAR(vehicleValue(world, car), 0, 1e-9);
  world.yearNumber = 2067;
  EXPECT_NEAR(vehicleValue(world, car), -750, 1e-9);
  world.yearNumber = 2030;
  world.realEstateIndex = 1.2;
  EXPECT_DOUBLE_EQ(vehicleValue(world, {.pricePaid = 100, .economyIndex = 0.8, .yearPurchased = 2026}), 140);
}

TEST_F(NetWorthSum, IncludesTheShareOfALaunchedPlatform) {
  world.platformShares = 600;
  world.platformCashAvailable = 1000;
  world.platformInfrastureValue = 500;
  world.saveAllEmployeeList = {{.sharesOwned = 100, .yearEnded = 2027}, {.sharesOwned = -40}};
  world.saveAllFundraisingRounds = {{.sharesToIssue = 300, .investorName = {"Vane"}}, {.sharesToIssue = 900}};
  EXPECT_EQ(totalPlatformShares(world), 1000);
  EXPECT_EQ(netWorth(world).platform, 0);
  world.isPlatformLaunched = 1;
  EXPECT_DOUBLE_EQ(netWorth(world).platform, 900);  // not valued yet: its cash
  world.trackBusinessValuation = {70, 2000};
  EXPECT_DOUBLE_EQ(netWorth(world).platform, 1200);
  world.platformShares = 0;
  world.saveAllEmployeeList.clear();
  world.saveAllFundraisingRounds.clear();
  EXPECT_DOUBLE_EQ(netWorth(world).platform, 2000);
}

}  // namespace
}  // namespace tb
