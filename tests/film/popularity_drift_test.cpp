// Popularity after the release: which titles move, and how far a week can move them.

#include "film/popularity_drift.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"
#include "week/end_week.h"

namespace tb {
namespace {

using test::ScratchGame;

constexpr std::int64_t thisWeek = 30;

Film titleOf(double popularity, double rating = 7) {
  return {.typeOfFilm = filmType::feature,
          .weekReleased = thisWeek - 1,
          .imbdRating = rating,
          .currentPopularity = popularity,
          .lastWeekPopularity = 3};
}

struct Drift : ScratchGame {
  explicit Drift(Film film) {
    game.world.weekNumberForTracking = thisWeek;
    game.world.saveAllFilmList.push_back(std::move(film));
  }
  const Film& drifted() {
    driftPopularity(game);
    EXPECT_EQ(random.left(), 0U);
    return game.world.saveAllFilmList.front();
  }
};

TEST(PopularityDrift, OneWeekInThreeJudgesATitleByItsRating) {
  struct Case {
    double popularity;
    double rating;
    double bar;  // as a share of 1 to 13
    double after;
  };
  const Case cases[] = {{50, 7, 0, 53},    // bar 1: up by half of 6
                        {50, 7, 0.5, 50},  // bar 7
                        {50, 7, 1, 47},    // bar 13: down by half of 6
                        {98, 7, 0, 100},   // no higher than 100
                        {2, 7, 1, 0},      // no lower than 0
                        {130, 7, 1, 127},  // a release beyond 100 comes down from where it was
                        {130, 7, 0, 100}};
  for (const Case& row : cases) {
    Drift week(titleOf(row.popularity, row.rating));
    week.random.range(3, 1).unit(row.bar);
    EXPECT_NEAR(week.drifted().currentPopularity, row.after, 1e-9) << row.popularity << " " << row.bar;
    EXPECT_EQ(week.game.world.saveAllFilmList.front().lastWeekPopularity, row.popularity);
  }
}

TEST(PopularityDrift, TheOtherWeeksForgetALittle) {
  for (const std::int64_t draw : {0, 2}) {
    for (const auto& [share, lost] : {std::pair{0.0, 0.1}, {1.0, 0.4}}) {
      Drift week(titleOf(50));
      week.random.range(3, draw).unit(share);
      EXPECT_NEAR(week.drifted().currentPopularity, 50 - lost, 1e-9);
    }
  }
  Drift nearly(titleOf(0.2));
  nearly.random.range(3, 0).unit(1);
  EXPECT_EQ(nearly.drifted().currentPopularity, 0);
}

TEST(PopularityDrift, OnlyFilmsAndSeriesThatAreOutAndStillTalkedAboutMove) {
  Film unreleased = titleOf(50);
  unreleased.weekReleased = thisWeek;
  Film small = titleOf(50);
  small.typeOfFilm = filmType::shortFilm;
  Film commercial = titleOf(50);
  commercial.typeOfFilm = filmType::commercial;
  for (const Film& still : {titleOf(0), titleOf(-5), unreleased, small, commercial}) {
    Drift week(still);
    EXPECT_EQ(week.drifted(), still);
  }
  Film series = titleOf(50);
  series.typeOfFilm = filmType::series;
  Drift week(series);
  week.random.range(3, 0).unit(0);
  EXPECT_LT(week.drifted().currentPopularity, 50);
}

TEST(PopularityDrift, RunsWhenTheSummaryOpensInTheOrderOfTheListAndIsSaved) {
  Drift week(titleOf(50));
  week.game.world.saveAllFilmList.push_back(titleOf(60));
  week.random.range(3, 0).unit(0).range(3, 0).unit(1).any(1);  // the last is the week's tip
  static_cast<void>(openSummary(week.game));
  EXPECT_EQ(week.random.left(), 0U);
  EXPECT_NEAR(week.game.world.saveAllFilmList[0].currentPopularity, 49.9, 1e-9);
  EXPECT_NEAR(week.game.world.saveAllFilmList[1].currentPopularity, 59.6, 1e-9);
  EXPECT_TRUE(week.store.contains("saveAllFilmList"));
}

}  // namespace
}  // namespace tb
