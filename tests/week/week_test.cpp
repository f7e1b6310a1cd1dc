#include <gtest/gtest.h>

#include "core/ended_week.h"
#include "life/energy.h"
#include "tests/scratch_game.h"
#include "wealth/market_index.h"
#include "week/end_week.h"

namespace tb {
namespace {

struct Week : testing::Test, test::ScratchGame {
  WorldState& world = game.world;

  // A week from button to button, with nothing to tell.
  WeekSummary live() {
    endWeek(game);
    random.any(1);  // the tip
    WeekSummary summary = openSummary(game);
    refreshHub(game, HubRefresh::worldChanged);
    random.unit(0.5).unit(0.5);
    closeSummary(game);
    return summary;
  }
};

TEST_F(Week, TheYearEndsInTheRefreshAfterWeek52) {
  world.weekNumber = 52;
  world.weekNumberForTracking = 52;
  world.yearToDatePaycheck = 1234;
  endWeek(game);
  EXPECT_EQ(world.weekNumber, 53);
  random.any(1);
  const WeekSummary summary = openSummary(game);
  EXPECT_EQ(summary.week, 52);
  EXPECT_EQ(summary.year, 2026);
  EXPECT_EQ(world.ageCount, 18);

  refreshHub(game, HubRefresh::worldChanged);
  EXPECT_EQ(world.yearNumber, 2027);
  EXPECT_EQ(world.weekNumber, 1);
  EXPECT_EQ(world.weekNumberForTracking, 53);
  EXPECT_EQ(world.ageCount, 19);
  EXPECT_EQ(world.saveLastYTDPaycheck, 1234);
  EXPECT_EQ(world.yearToDatePaycheck, 0);
  EXPECT_EQ(endedWeek(world).week, 52);
  EXPECT_EQ(endedWeek(world).year, 2026);
  refreshHub(game, HubRefresh::worldChanged);  // a refresh more changes nothing more
  EXPECT_EQ(world.yearNumber, 2027);
}

TEST_F(Week, AYearThatWasCutShortEndsAtTheNextLaunch) {
  world.weekNumber = 53;
  refreshHub(game, HubRefresh::launch);
  EXPECT_EQ(world.weekNumber, 1);
  EXPECT_EQ(store.value("yearNumber"), plist::Value{std::int64_t{2027}});
}

TEST_F(Week, AgeTakesOneAYearAndTwoFromForty) {
  world.weekNumber = 53;
  world.ageCount = 38;
  refreshHub(game, HubRefresh::launch);
  EXPECT_EQ(world.totalEnergyMax, 99);
  world.weekNumber = 53;
  refreshHub(game, HubRefresh::launch);
  EXPECT_EQ(world.ageCount, 40);
  EXPECT_EQ(world.totalEnergyMax, 97);
  EXPECT_EQ(world.saveAgeLoss, -3);
  EXPECT_EQ(world.totalEnergyAvailable, 100);  // the week at hand is not touched
  world.totalEnergyMax = 26;
  world.weekNumber = 53;
  refreshHub(game, HubRefresh::launch);
  EXPECT_EQ(world.totalEnergyMax, 25);
  EXPECT_EQ(world.saveAgeLoss, -5);
}

TEST_F(Week, TheRefillTakesEveryDrainAndKeepsASurplus) {
  world.totalEnergyAvailable = 3;
  world.weeklyEnergyCost = 10;
  world.childEnergyCost = 7;
  world.platformEnergyCost = 20;
  world.saveAllCompletedClasses.push_back({.energyCost = 15, .weeksRemaining = 1});
  world.saveAllCompletedClasses.push_back({.energyCost = 99, .weeksRemaining = 0});
  for (int role = 0; role < 6; ++role) {
    world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 1 + role % 2});
  }
  world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 3});
  EXPECT_EQ(weeklyEnergyDrain(world), 10 + 7 + 20 + 15 + 1);
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 100 - 53);
  world.totalEnergyAvailable = 130;
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 130 - 53);
  world.childEnergyCost = 500;
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  EXPECT_EQ(store.value("totalEnergyAvailable"), plist::Value{std::int64_t{0}});
}

TEST_F(Week, AJobOfOneWeekPaysOnceMoreBeforeItIsCleared) {
  world.weeklyJobTitle = "Set Runner";
  world.weeklyJobIncome = 400;
  world.weeklyEnergyCost = 12;
  world.weeklyJobContractRemaining = 1;
  endWeek(game);
  EXPECT_EQ(world.weeklyJobContractRemaining, 0);
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  const WeekSummary last_week = openSummary(game);
  EXPECT_EQ(last_week.feed, std::vector<std::string>{"The contract for your job has ended"});
  EXPECT_EQ(last_week.balance.income, 400);
  EXPECT_EQ(world.totalCashAvailable, 400);
  endWeek(game);
  random.any(1);
  EXPECT_EQ(openSummary(game).balance.income, 0);
  EXPECT_EQ(world.totalCashAvailable, 400);
  EXPECT_EQ(world.weeklyJobTitle, "");
  EXPECT_EQ(world.weeklyJobIncome, 0);
  EXPECT_EQ(world.totalEnergyAvailable, 88);  // the last refill still pays for it
  endWeek(game);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
}

TEST_F(Week, AQuietWeekGivesATipAndSaysSoInTheLog) {
  const WeekSummary summary = live();
  EXPECT_FALSE(summary.hasNews);
  ASSERT_EQ(summary.feed.size(), 1u);
  EXPECT_TRUE(summary.feed[0].starts_with("💡 "));
  EXPECT_TRUE(world.WeekFeed.empty());
  ASSERT_EQ(world.activityTracker.size(), 2u);
  EXPECT_EQ(world.activityTracker[0], "JANUARY 9, 2026");
  EXPECT_EQ(world.activityTracker[1], "Nothing significant happened this week");
  EXPECT_EQ(world.trackRealEstateIndex.size(), 1u);
}

TEST_F(Week, ABusyWeekIsHeadedByItsDateAlone) {
  endWeek(game);
  world.saveAllCompletedClasses.push_back({.classId = 1, .weeksRemaining = 1, .experience = 25});
  const WeekSummary summary = openSummary(game);
  EXPECT_TRUE(summary.hasNews);
  EXPECT_EQ(summary.feed, std::vector<std::string>{"You finished Drama 106"});
  refreshHub(game, HubRefresh::worldChanged);
  world.weekNetIncome = -50;
  random.unit(0.5).unit(0.5);
  closeSummary(game);
  EXPECT_EQ(world.activityTracker, (TextList{"JANUARY 9, 2026", "You finished Drama 106"}));
  EXPECT_EQ(world.saveWeeklyEarnings, (RealList{-50}));
}

TEST_F(Week, EarningsKeepTheNewestYear) {
  for (int week = 0; week < 54; ++week) live();
  EXPECT_EQ(world.saveWeeklyEarnings.size(), 52u);
  EXPECT_EQ(world.trackRealEstateIndex.size(), 48u);
  EXPECT_EQ(world.weekNumberForTracking, 55);
  EXPECT_EQ(world.yearNumber, 2027);
}

TEST_F(Week, MarketsStayInsideTheirCorridors) {
  world.realEstateIndex = 0.505;
  world.cardIndex = 1.48;
  random.unit(0).unit(1);
  moveRealEstateIndex(game);
  moveCardIndex(game);
  EXPECT_EQ(world.realEstateIndex, 0.51);
  EXPECT_EQ(world.cardIndex, 1.49);
  world.realEstateIndex = 1.495;
  world.cardIndex = 0.32;
  random.unit(1).unit(0);
  moveRealEstateIndex(game);
  moveCardIndex(game);
  EXPECT_EQ(world.realEstateIndex, 1.49);
  EXPECT_EQ(world.cardIndex, 0.31);
}

TEST_F(Week, TheHalfYearlyCleanUpForgetsStaleAndClosedAuditionsUnderAnotherKey) {
  world.weekNumberForTracking = 77;
  world.saveAllAuditionList.push_back({.filmId = 1, .weekAudition = 57, .funnelStage = 1});  // 20 weeks old
  world.saveAllAuditionList.push_back({.filmId = 2, .weekAudition = 58, .funnelStage = 1});
  world.saveAllAuditionList.push_back({.filmId = 3, .weekAudition = 1, .funnelStage = 1, .didAct = 0});
  world.saveAllAuditionList.push_back({.filmId = 4, .funnelStage = -1});
  world.saveAllAuditionList.push_back({.filmId = 5, .funnelStage = 3});
  for (const std::int64_t week : {24, 26, 49, 51}) {
    world.weekNumber = week;
    random.any(1);
    static_cast<void>(openSummary(game));
    EXPECT_EQ(world.saveAllAuditionList.size(), 5u);
  }
  EXPECT_FALSE(store.contains("save"));
  world.weekNumber = 25;
  random.any(1);
  static_cast<void>(openSummary(game));
  std::vector<std::int64_t> left;
  for (const Audition& audition : world.saveAllAuditionList) left.push_back(audition.filmId);
  EXPECT_EQ(left, (std::vector<std::int64_t>{2, 3, 5}));
  EXPECT_TRUE(store.contains("save"));
  EXPECT_FALSE(store.contains("saveAllAuditionList"));
}

TEST_F(Week, BestFiguresArePutForwardOnceUntilTheFlagClears) {
  world.saveNetworth = 1000.9;
  world.saveBoxOffice = 77;
  world.weekNumber = 16;
  refreshHub(game, HubRefresh::launch);  // not at launch
  EXPECT_EQ(world.bestNetworth, 0);
  refreshHub(game, HubRefresh::worldChanged);
  EXPECT_EQ(world.bestNetworth, 1000);
  EXPECT_EQ(world.bestBoxOffice, 77);
  world.saveNetworth = 2000;
  refreshHub(game, HubRefresh::worldChanged);
  EXPECT_EQ(world.bestNetworth, 1000);
  world.weekNumber = 20;
  refreshHub(game, HubRefresh::worldChanged);
  world.weekNumber = 32;
  refreshHub(game, HubRefresh::worldChanged);
  EXPECT_EQ(world.bestNetworth, 2000);
  world.saveNetworth = 5;
  world.weekNumber = 40;
  refreshHub(game, HubRefresh::worldChanged);
  world.weekNumber = 48;
  refreshHub(game, HubRefresh::worldChanged);
  EXPECT_EQ(world.bestNetworth, 2000);
}

}  // namespace
}  // namespace tb
