#include <gtest/gtest.h>

#include "core/ended_week.h"
#include "core/save.h"
#include "tests/scratch_game.h"
#include "week/end_week.h"

namespace tb {
namespace {

struct EndWeek : test::RuleTest {
  EndWeek() : RuleTest(test::Unscripted::low) {}

  void close() {
    refreshHub(game, HubRefresh::worldChanged);
    closeSummary(game);
  }
  WeekSummary playWeek() {
    endWeek(game);
    WeekSummary summary = openSummary(game);
    close();
    return summary;
  }
  void refreshInWeek(std::int64_t week, HubRefresh refresh = HubRefresh::worldChanged) {
    world.weekNumber = week;
    refreshHub(game, refresh);
  }
};

TEST_F(EndWeek, TheYearEndsAfterWeek52) {
  world.weekNumber = 52;
  world.weekNumberForTracking = 52;
  world.yearToDatePaycheck = 1234;
  endWeek(game);
  EXPECT_EQ(world.weekNumber, 53);
  const WeekSummary summary = openSummary(game);
  EXPECT_EQ(summary.week, 52);
  EXPECT_EQ(summary.year, 2026);
  EXPECT_EQ(world.ageCount, 18);
  for (int refresh = 0; refresh < 2; ++refresh) {  // another refresh changes nothing
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

TEST_F(EndWeek, AnInterruptedYearEndEndsAtTheNextLaunch) {
  refreshInWeek(53, HubRefresh::launch);
  EXPECT_EQ(world.weekNumber, 1);
  EXPECT_EQ(world.yearNumber, 2027);
}

TEST_F(EndWeek, AJobIsClearedAWeekAfterItEnds) {
  world.weeklyJobTitle = "Set Runner";
  world.weeklyJobIncome = 400;
  world.weeklyEnergyCost = 12;
  world.weeklyJobContractRemaining = 1;
  endWeek(game);
  EXPECT_EQ(world.weeklyJobContractRemaining, 0);
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  const WeekSummary lastWeek = openSummary(game);
  EXPECT_EQ(lastWeek.feed, std::vector<std::string>{"The contract for your job has ended"});
  EXPECT_EQ(lastWeek.balance.income, 400);
  EXPECT_EQ(world.totalCashAvailable, 400);
  endWeek(game);
  EXPECT_EQ(openSummary(game).balance.income, 0);
  EXPECT_EQ(world.totalCashAvailable, 400);
  EXPECT_EQ(world.weeklyJobTitle, "");
  EXPECT_EQ(world.weeklyJobIncome, 0);
  EXPECT_EQ(world.totalEnergyAvailable, 88);  // the last refill still includes the cost
  endWeek(game);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
}

TEST_F(EndWeek, AQuietWeekShowsATip) {
  const WeekSummary summary = playWeek();
  EXPECT_FALSE(summary.hasNews);
  ASSERT_EQ(summary.feed.size(), 1u);
  EXPECT_TRUE(summary.feed[0].starts_with("💡 "));
  EXPECT_TRUE(world.WeekFeed.empty());
  EXPECT_EQ(world.activityTracker, (TextList{"JANUARY 9, 2026", "Nothing significant happened this week"}));
}

TEST_F(EndWeek, LogsTheDateOfABusyWeek) {
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

TEST_F(EndWeek, EarningsKeepTheLastYear) {
  for (int week = 0; week < 54; ++week) playWeek();
  EXPECT_EQ(world.saveWeeklyEarnings.size(), 52u);
  EXPECT_EQ(world.trackRealEstateIndex.size(), 48u);
  EXPECT_EQ(world.weekNumberForTracking, 55);
  EXPECT_EQ(world.yearNumber, 2027);
}

TEST_F(EndWeek, CleansUpAuditionsTwiceAYear) {
  world.weekNumberForTracking = 77;
  world.saveAllAuditionList = {{.filmId = 1, .weekAudition = 57, .funnelStage = 1},  // 20 weeks old
                               {.filmId = 2, .weekAudition = 58, .funnelStage = 1},
                               {.filmId = 3, .weekAudition = 1, .funnelStage = 1, .didAct = 0},
                               {.filmId = 4, .funnelStage = -1},
                               {.filmId = 5, .funnelStage = 3}};
  for (const std::int64_t week : {24, 26, 49, 51}) {
    world.weekNumber = week;
    static_cast<void>(openSummary(game));
    EXPECT_EQ(world.saveAllAuditionList.size(), 5u);
  }
  saveChanges(game);
  EXPECT_FALSE(store.contains("save"));
  world.weekNumber = 25;
  static_cast<void>(openSummary(game));
  saveChanges(game);
  std::vector<std::int64_t> left;
  for (const Audition& audition : world.saveAllAuditionList) left.push_back(audition.filmId);
  EXPECT_EQ(left, (std::vector<std::int64_t>{2, 3, 5}));
  EXPECT_EQ(store.value("save"), store.value("saveAllAuditionList"));

  world.saveAllAuditionList.clear();
  world.save.clear();
  saveChanges(game);
  store.remove("save");
  static_cast<void>(openSummary(game));
  saveChanges(game);
  EXPECT_TRUE(store.contains("save"));  // also when nothing is removed
}

TEST_F(EndWeek, SubmitsBestFiguresOnce) {
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
