// A series on the air: its premiere, its weekly episodes and their audiences.

#include "film/series_run.h"

#include <gtest/gtest.h>

#include "banks/banks.h"
#include "tests/film/wrapped_project.h"

namespace tb {
namespace {

using test::ReleasedGame;
using test::releaseWeek;

Audition seriesOf(std::int64_t episodes) {
  Audition project = test::projectOf(filmType::series);
  project.numberOfEpisodesTotal = episodes;
  project.parentSeriesFilmId = 3;
  project.seasonNumber = 2;
  return project;
}

// A series whose first episode was seen by a million people.
struct RunningSeries : ReleasedGame {
  explicit RunningSeries(Audition project) : ReleasedGame(std::move(project)) {
    world().saveAllRatings.push_back({.filmId = 99, .premiereViews = {5}});
    world().saveAllRatings.push_back(
        {.filmId = 7, .premiereViews = {1e6}, .hoursWatched = {1'000'000}, .weeksTracked = {releaseWeek}});
    film().imbdRating = 6;
    film().imbdMetascore = 60;
    film().currentPopularity = 0;
  }
  const Ratings& season() { return world().saveAllRatings[1]; }
};

TEST(Premiere, TheAudienceFollowsFromBudgetAndHypeAndIsTold) {
  ReleasedGame released(seriesOf(8));
  released.project().hypeRating = 100;
  released.project().performanceRating = 22.9;
  released.project().writerRating = 20;  // with the director's 50: 92, the lowest crew
  released.random.unit(1).unit(0.5).unit(1).range(20, 0);
  premiereSeries(released.game, released.project());
  ASSERT_EQ(released.random.left(), 0U);
  const Ratings expected{.filmId = 7,
                         .parentSeriesId = 3,
                         .seasonNumber = 2,
                         .title = "Salt Road",
                         .year = 2030,
                         .weekNumberForTracking = releaseWeek,
                         .premiereViews = {1'000'000 * 0.1 * 3},
                         .hoursWatched = {300'000},
                         .weeksTracked = {releaseWeek},
                         .adRates = 1.0 / 10 + 0.01 + 5.0 / 100};
  ASSERT_EQ(released.world().saveAllRatings.size(), 1U);
  EXPECT_EQ(released.world().saveAllRatings.front(), expected);
  EXPECT_EQ(released.world().activityTracker.front(), "Premiere pop-off: Salt Road pulled 300,000");
  EXPECT_TRUE(released.world().WeekFeed.empty());
}

TEST(Premiere, ABetterCrewSellsDearerAdvertising) {
  struct Case {
    std::int64_t crew;  // all ratings of director, writer and performance together
    double highest;     // of the bonus; the director's own top is 5
  };
  for (const auto& [crew, highest] :
       {Case{-3, 0}, {-2, 5}, {92, 5}, {93, 7}, {215, 7}, {216, 8}, {452, 8}, {453, 0}}) {
    ReleasedGame released(seriesOf(8));
    released.project().writerRating = crew - 50;
    released.random.unit(1).unit(0.5);
    if (highest > 0) released.random.unit(1);
    released.random.range(20, 0);
    premiereSeries(released.game, released.project());
    EXPECT_EQ(released.random.left(), 0U);
    EXPECT_NEAR(released.world().saveAllRatings.front().adRates, 0.01 + highest / 100, 1e-12) << crew;
  }
}

TEST(Premiere, WithoutABudgetThereIsNoSeason) {
  ReleasedGame released(seriesOf(8));
  released.project().budget = 0;
  released.random.any(1);
  premiereSeries(released.game, released.project());
  EXPECT_TRUE(released.world().saveAllRatings.empty());
  EXPECT_TRUE(released.world().activityTracker.empty());
}

TEST(Premiere, ComesWithTheReleaseOfASeriesAndLeavesTheHypeAlone) {
  ReleasedGame released(seriesOf(8));
  released.project().hypeRating = 40;
  released.random.any(9).any(4);  // scores; audience, hours, crew, line
  released.advance(0);
  EXPECT_EQ(released.world().saveAllRatings.size(), 1U);
  EXPECT_EQ(released.project().hypeRating, 40);
}

TEST(Episode, TheAudienceIsLastWeeksTimesWhoStaysAndWhoHeardOfIt) {
  RunningSeries series(seriesOf(8));
  series.film().currentPopularity = 100;
  series.random.unit(1).unit(0);  // 0.9 stay, and talk adds a quarter
  series.advance(1);
  EXPECT_EQ(series.season().premiereViews.size(), 2U);
  EXPECT_NEAR(series.season().premiereViews.back(), 1.15e6, 1e-3);
  EXPECT_EQ(series.season().hoursWatched.back(), 862'500);
  EXPECT_EQ(series.season().weeksTracked.back(), releaseWeek + 1);
  EXPECT_EQ(series.world().saveAllRatings[0].premiereViews.size(), 1U);  // another series' figures
}

TEST(Episode, HowManyStayIsDecidedByBothScores) {
  struct Case {
    double imbdRating;
    std::int64_t imbdMetascore;
    double least;
    double most;
  };
  const Case cases[] = {
      {2, 40, 0.5, 0.8}, {6, 40, 0.6, 0.85}, {8, 60, 0.7, 0.9}, {9, 90, 0.8, 1.0}, {10, 90, 0.8, 1.1},
  };
  for (const Case& row : cases) {
    RunningSeries series(seriesOf(8));
    series.film().imbdRating = row.imbdRating;
    series.film().imbdMetascore = row.imbdMetascore;
    series.random.unit(0).unit(0.5);
    series.advance(1);
    EXPECT_NEAR(series.season().premiereViews[1], row.least * 1e6, 1e-3);
    series.random.unit(1).unit(0.5);
    series.advance(2);
    EXPECT_NEAR(series.season().premiereViews[2], row.least * row.most * 1e6, 1e-3);
  }
}

TEST(Episode, BetweenTheBandsEverybodyStaysAndNothingIsDrawn) {
  RunningSeries series(seriesOf(8));
  series.film().imbdRating = 2.001;  // with 40: 3.0005
  series.film().imbdMetascore = 40;
  series.random.unit(0.5);
  series.advance(1);
  EXPECT_EQ(series.season().premiereViews[1], 1e6);
}

TEST(Episode, TheLeadWinsFansEveryWeekOfTheSeason) {
  Audition project = seriesOf(3);
  project.isPrincipal = rolePart::principal;
  RunningSeries series(project);
  for (const std::int64_t week : {1, 2}) {
    series.random.unit(1).unit(0).unit(0);
    series.advance(week);
    EXPECT_EQ(series.world().fanGainCarry, 378 * week);  // 60% of 600 fans, at 1.05
  }
  series.advance(3);  // the season is over
  EXPECT_EQ(series.season().premiereViews.size(), 3U);
}

TEST(Episode, AMissedWeekIsNeverMadeUpFor) {
  RunningSeries series(seriesOf(8));
  series.advance(2);
  EXPECT_EQ(series.season().premiereViews.size(), 1U);
  EXPECT_EQ(series.season().weeksTracked.size(), 1U);
}

TEST(Episode, ASeriesOfOneEpisodeHasNoWeeksAtAll) {
  RunningSeries series(seriesOf(1));
  series.advance(1);
  EXPECT_EQ(series.season().premiereViews.size(), 1U);
}

}  // namespace
}  // namespace tb
