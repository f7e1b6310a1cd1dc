#include <gtest/gtest.h>

#include "core/ended_week.h"
#include "core/save.h"
#include "life/energy.h"
#include "tests/scratch_game.h"
#include "wealth/market_index.h"
#include "week/end_week.h"

namespace tb {
namespace {

struct Week : test::RuleTest {
  // Opens the summary of a week with nothing to tell, which gives a tip instead.
  WeekSummary openQuietSummary() {
    random.any(1);
    return openSummary(game);
  }
  void close() {
    refreshHub(game, HubRefresh::worldChanged);
    random.unit(0.5).unit(0.5);
    closeSummary(game);
  }
  WeekSummary liveQuietWeek() {
    endWeek(game);
    WeekSummary summary = openQuietSummary();
    close();
    return summary;
  }
  void refreshInWeek(std::int64_t week, HubRefresh refresh = HubRefresh::worldChanged) {
    world.weekNumber = week;
    refreshHub(game, refresh);
  }
};

TEST_F(Week, TheYearEndsInTheRefreshAfterWeek52) {
  world.weekNumber = 52;
  world.weekNumberForTracking = 52;
  world.yearToDatePaycheck = 1234;
  endWeek(game);
  EXPECT_EQ(world.weekNumber, 53);
  const WeekSummary summary = openQuietSummary();
  EXPECT_EQ(summary.week, 52);
  EXPECT_EQ(summary.year, 2026);
  EXPECT_EQ(world.ageCount, 18);
  for (int refresh = 0; refresh < 2; ++refresh) {  // a refresh more changes nothing more
    refreshHub(game, HubRefresh::worldChanged);
    EXPECT_EQ(world.yearNumber, 2027);
    EXPECT_EQ(world.weekNumber, 1);
    EXPECT_EQ(world.weekNumberForTracking, 53);
    EXPECT_EQ(world.ageCount, 19);
    EXPECT_EQ(world.saveLastYTDPaycheck, 1234);
    EXPECT_EQ(world.yearToDatePaycheck, 0);
    EXPECT_EQ(endedWeek(world).week, 52);
    EXPECT_EQ(endedWeek(world).year, 2026);
  }
}

TEST_F(Week, AYearThatWasCutShortEndsAtTheNextLaunch) {
  refreshInWeek(53, HubRefresh::launch);
  EXPECT_EQ(world.weekNumber, 1);
  EXPECT_EQ(world.yearNumber, 2027);
}

TEST_F(Week, AgeTakesOneAYearAndTwoFromForty) {
  world.ageCount = 38;
  refreshInWeek(53);
  EXPECT_EQ(world.totalEnergyMax, 99);
  refreshInWeek(53);
  EXPECT_EQ(world.totalEnergyMax, 97);
  EXPECT_EQ(world.saveAgeLoss, -3);
  EXPECT_EQ(world.totalEnergyAvailable, 100);  // the week at hand is not touched
  world.totalEnergyMax = 26;
  refreshInWeek(53);
  EXPECT_EQ(world.totalEnergyMax, 25);
  EXPECT_EQ(world.saveAgeLoss, -5);
}

TEST_F(Week, TheRefillTakesEveryDrainAndKeepsASurplus) {
  world.totalEnergyAvailable = 3;
  world.weeklyEnergyCost = 10;
  world.childEnergyCost = 7;
  world.platformEnergyCost = 20;
  world.saveAllCompletedClasses = {{.energyCost = 15, .weeksRemaining = 1}, {.energyCost = 99}};
  world.weekNumberForTracking = 5;
  for (int role = 0; role < 6; ++role) {
    world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 1 + role % 2, .weekAudition = 6});
  }
  world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 3});
  // Auditions that are over take nothing, nor do those of the week that is ending.
  world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 1, .weekAudition = 4});
  world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = 1, .weekAudition = 5});
  EXPECT_EQ(weeklyEnergyDrain(world, 6), 10 + 7 + 20 + 15 + 1);
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 100 - 53);
  world.totalEnergyAvailable = 130;
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 130 - 53);
  world.childEnergyCost = 500;
  refillEnergy(game);
  EXPECT_EQ(world.totalEnergyAvailable, 0);
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
  EXPECT_EQ(openQuietSummary().balance.income, 0);
  EXPECT_EQ(world.totalCashAvailable, 400);
  EXPECT_EQ(world.weeklyJobTitle, "");
  EXPECT_EQ(world.weeklyJobIncome, 0);
  EXPECT_EQ(world.totalEnergyAvailable, 88);  // the last refill still pays for it
  endWeek(game);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
}

TEST_F(Week, AQuietWeekGivesATipAndSaysSoInTheLog) {
  const WeekSummary summary = liveQuietWeek();
  EXPECT_FALSE(summary.hasNews);
  ASSERT_EQ(summary.feed.size(), 1u);
  EXPECT_TRUE(summary.feed[0].starts_with("💡 "));
  EXPECT_TRUE(world.WeekFeed.empty());
  EXPECT_EQ(world.activityTracker, (TextList{"JANUARY 9, 2026", "Nothing significant happened this week"}));
}

TEST_F(Week, ABusyWeekIsHeadedByItsDateAlone) {
  endWeek(game);
  world.saveAllCompletedClasses = {{.classId = 1, .weeksRemaining = 1, .experience = 25}};
  const WeekSummary summary = openSummary(game);
  EXPECT_TRUE(summary.hasNews);
  EXPECT_EQ(summary.feed, std::vector<std::string>{"You finished Drama 106"});
  world.weekNetIncome = -50;
  close();
  EXPECT_EQ(world.activityTracker, (TextList{"JANUARY 9, 2026", "You finished Drama 106"}));
  EXPECT_EQ(world.saveWeeklyEarnings, (RealList{-50}));
}

TEST_F(Week, EarningsKeepTheNewestYear) {
  for (int week = 0; week < 54; ++week) liveQuietWeek();
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
  world.cardIndex = 0.36;
  random.unit(0);
  moveCardIndex(game);
  EXPECT_DOUBLE_EQ(world.cardIndex, 0.31);  // low, and left there
  random.unit(1);
  moveCardIndex(game);
  EXPECT_DOUBLE_EQ(world.cardIndex, 0.36);
}

TEST_F(Week, TheHalfYearlyCleanUpForgetsStaleAndClosedAuditionsUnderBothKeys) {
  world.weekNumberForTracking = 77;
  world.saveAllAuditionList = {{.filmId = 1, .weekAudition = 57, .funnelStage = 1},  // 20 weeks old
                               {.filmId = 2, .weekAudition = 58, .funnelStage = 1},
                               {.filmId = 3, .weekAudition = 1, .funnelStage = 1, .didAct = 0},
                               {.filmId = 4, .funnelStage = -1},
                               {.filmId = 5, .funnelStage = 3}};
  for (const std::int64_t week : {24, 26, 49, 51}) {
    world.weekNumber = week;
    openQuietSummary();
    EXPECT_EQ(world.saveAllAuditionList.size(), 5u);
  }
  saveChanges(game);
  EXPECT_FALSE(store.contains("save"));
  world.weekNumber = 25;
  openQuietSummary();
  saveChanges(game);
  std::vector<std::int64_t> left;
  for (const Audition& audition : world.saveAllAuditionList) left.push_back(audition.filmId);
  EXPECT_EQ(left, (std::vector<std::int64_t>{2, 3, 5}));
  EXPECT_EQ(store.value("save"), store.value("saveAllAuditionList"));

  world.saveAllAuditionList.clear();
  world.save.clear();
  saveChanges(game);
  store.remove("save");
  openQuietSummary();
  saveChanges(game);
  EXPECT_TRUE(store.contains("save"));  // with nothing to forget, too
}

TEST_F(Week, BestFiguresArePutForwardOnceUntilTheFlagClears) {
  world.saveNetworth = 1000.9;
  world.saveBoxOffice = 77;
  refreshInWeek(16, HubRefresh::launch);  // not at launch
  EXPECT_EQ(world.bestNetworth, 0);
  refreshInWeek(16);
  EXPECT_EQ(world.bestNetworth, 1000);
  EXPECT_EQ(world.bestBoxOffice, 77);
  world.saveNetworth = 2000;
  refreshInWeek(16);
  EXPECT_EQ(world.bestNetworth, 1000);
  refreshInWeek(20);
  refreshInWeek(32);
  EXPECT_EQ(world.bestNetworth, 2000);
  world.saveNetworth = 5;
  refreshInWeek(40);
  refreshInWeek(48);
  EXPECT_EQ(world.bestNetworth, 2000);
}

}  // namespace
}  // namespace tb
