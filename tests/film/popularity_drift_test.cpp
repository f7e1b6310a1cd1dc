// Popularity after the release: which titles move, and how far a week can move them.

#include "film/popularity_drift.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

struct PopularityDrift : test::RuleTest {
  PopularityDrift() { world.weekNumberForTracking = 30; }

  static Film titleOf(double popularity, std::int64_t typeOfFilm = filmType::feature) {
    return {.typeOfFilm = typeOfFilm,
            .weekReleased = 29,
            .imbdRating = 7,
            .currentPopularity = popularity,
            .lastWeekPopularity = 3};
  }
  double drifted(const Film& film) {
    world.saveAllFilmList.assign(std::vector{film});
    driftPopularity(game);
    return world.saveAllFilmList.front().currentPopularity;
  }
};

TEST_F(PopularityDrift, OneWeekInThreeJudgesATitleByItsRating) {
  struct Case {
    double popularity, bar, after;  // the bar as a share of 1 to 13
  };
  const Case cases[] = {{50, 0, 53},    // bar 1: up by half of 6
                        {50, 0.5, 50},  // bar 7
                        {50, 1, 47},    // bar 13: down by half of 6
                        {98, 0, 100},   // no higher than 100
                        {2, 1, 0},      // no lower than 0
                        {130, 1, 127},  // a release beyond 100 comes down from where it was
                        {130, 0, 100}};
  for (const auto& [popularity, bar, after] : cases) {
    random.range(3, 1).unit(bar);
    EXPECT_NEAR(drifted(titleOf(popularity)), after, 1e-9) << popularity << " " << bar;
    EXPECT_EQ(world.saveAllFilmList.front().lastWeekPopularity, popularity);
  }
}

TEST_F(PopularityDrift, TheOtherWeeksForgetALittle) {
  for (const std::int64_t draw : {0, 2}) {
    random.range(3, draw).unit(0).range(3, draw).unit(1);
    EXPECT_NEAR(drifted(titleOf(50)), 49.9, 1e-9);
    EXPECT_NEAR(drifted(titleOf(50)), 49.6, 1e-9);
  }
  random.range(3, 0).unit(1);
  EXPECT_EQ(drifted(titleOf(0.2)), 0);
}

TEST_F(PopularityDrift, OnlyFilmsAndSeriesThatAreOutAndStillTalkedAboutMove) {
  Film unreleased = titleOf(50);
  unreleased.weekReleased = 30;
  for (const Film& still : {titleOf(0), titleOf(-5), unreleased, titleOf(50, filmType::shortFilm),
                            titleOf(50, filmType::commercial)}) {
    drifted(still);
    EXPECT_EQ(world.saveAllFilmList.front(), still);
  }
  random.range(3, 0).unit(0);
  EXPECT_LT(drifted(titleOf(50, filmType::series)), 50);
}

TEST_F(PopularityDrift, RunsInTheOrderOfTheListAndIsSaved) {
  world.saveAllFilmList.assign(std::vector{titleOf(50), titleOf(60)});
  random.range(3, 0).unit(0).range(3, 0).unit(1);
  driftPopularity(game);
  EXPECT_NEAR(world.saveAllFilmList[0].currentPopularity, 49.9, 1e-9);
  EXPECT_NEAR(world.saveAllFilmList[1].currentPopularity, 59.6, 1e-9);
}

}  // namespace
}  // namespace tb
