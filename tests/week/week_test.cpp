#include <gtest/gtest.h>

#include "core/ended_week.h"
#include "core/save.h"
#include "tests/scratch_game.h"
#include "week/end_week.h"

namespace tb {
namespace {

struct EndWeek : test::RuleTest {
  EndWeek() : RuleTest(test::Unscripted::low) {}

  WeekSummary playWeek() {
    endWeek(game);
    WeekSummary summary = openSummary(game);
    refreshHub(game, HubRefresh::worldChanged);
    closeSummary(game);
    return summary;
  }
  void refreshInWeek(std::int64_t week, HubRefresh refresh = HubRefresh::worldChanged) {
    world.weekNumber = week;
    refreshHub(game, refresh);
  }
};

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
  EXPECT_EQ(playWeek().balance.income, 400);
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  EXPECT_EQ(playWeek().balance.income, 0);
  EXPECT_EQ(world.weeklyJobTitle, "");
  EXPECT_EQ(world.totalEnergyAvailable, 88);  // the last refill still includes the cost
  playWeek();
  EXPECT_EQ(world.totalEnergyAvailable, 100);
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
}

TEST_F(EndWeek, SubmitsBestFiguresOnce) {
  const struct {
    std::int64_t week;
    double worth;
    std::int64_t best;
  } visits[] = {{16, 1000.9, 1000}, {16, 2000, 1000}, {20, 2000, 1000},
                {32, 2000, 2000},   {40, 5, 2000},    {48, 5, 2000}};
  world.saveNetworth = 1000;
  world.saveBoxOffice = 77;
  refreshInWeek(16, HubRefresh::launch);
  EXPECT_EQ(world.bestNetworth, 0) << "not at launch";
  for (const auto& [week, worth, best] : visits) {
    world.saveNetworth = worth;
    refreshInWeek(week);
    EXPECT_EQ(world.bestNetworth, best) << week;
    EXPECT_EQ(world.bestBoxOffice, 77);
  }
}

}  // namespace
}  // namespace tb
