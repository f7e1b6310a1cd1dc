// A series on the air: its premiere, its weekly episodes and their audiences.

#include "film/series_run.h"

#include <gtest/gtest.h>

#include "tests/film/wrapped_project.h"
#include "tests/record_text.h"

namespace tb {
namespace {

using test::releaseWeek;

struct Season : test::ReleasedGame {
  explicit Season(std::int64_t episodes = 8) : ReleasedGame(filmType::series) {
    project().numberOfEpisodesTotal = episodes;
    project().parentSeriesFilmId = 3;
    project().seasonNumber = 2;
  }
};

TEST(Premiere, TheAudienceFollowsFromBudgetAndHypeAndIsTold) {
  Season season;
  season.project().hypeRating = 100;
  season.project().performanceRating = 22.9;
  season.project().writerRating = 20;  // with the director's 50: 92, the lowest crew
  season.random.unit(1).unit(0.5).unit(1).range(20, 0);
  premiereSeries(season.game, season.project());
  EXPECT_EQ(test::shown(season.world.saveAllRatings),
            "(filmId 7, parentSeriesId 3, seasonNumber 2, title Salt Road, year 2030, "
            "weekNumberForTracking 20, premiereViews [300000], hoursWatched [300000], weeksTracked [20], "
            "adRates 0.16)");
  season.expectToldInTheLogAlone("Premiere pop-off: Salt Road pulled 300,000");
}

TEST(Premiere, ABetterCrewSellsDearerAdvertising) {
  // All ratings of director, writer and performance together; the most of the bonus.
  const std::pair<std::int64_t, double> cases[] = {{-3, 0},  {-2, 5},  {92, 5},  {93, 7},
                                                   {215, 7}, {216, 8}, {452, 8}, {453, 0}};
  for (const auto& [crew, highest] : cases) {
    Season season;
    season.project().writerRating = crew - 50;
    season.random.unit(1).unit(0.5);
    if (highest > 0) season.random.unit(1);
    season.random.range(20, 0);
    premiereSeries(season.game, season.project());
    EXPECT_NEAR(season.world.saveAllRatings.front().adRates, 0.01 + highest / 100, 1e-12) << crew;
  }
}

TEST(Premiere, ComesWithTheReleaseOfASeriesUnlessThereIsNoBudget) {
  Season season;
  season.project().hypeRating = 40;
  season.random.any(9).any(4);  // scores; audience, hours, crew, line
  season.advance(0);
  EXPECT_EQ(season.world.saveAllRatings.size(), 1U);
  EXPECT_EQ(season.project().hypeRating, 40);  // for once left alone

  Season free;
  free.project().budget = 0;
  free.random.any(1);
  premiereSeries(free.game, free.project());
  EXPECT_TRUE(free.world.saveAllRatings.empty());
  free.expectNothingTold();
}

// A season whose first episode was seen by a million people.
struct RunningSeason : Season {
  explicit RunningSeason(std::int64_t episodes = 8) : Season(episodes) {
    world.saveAllRatings = {
        {.filmId = 99, .premiereViews = {5}},
        {.filmId = 7, .premiereViews = {1e6}, .hoursWatched = {1'000'000}, .weeksTracked = {releaseWeek}}};
    film().imbdRating = 6;
    film().imbdMetascore = 60;
    film().currentPopularity = 0;
  }
  const Ratings& record() { return world.saveAllRatings[1]; }
};

TEST(Episode, TheAudienceIsLastWeeksTimesWhoStaysAndWhoHeardOfIt) {
  RunningSeason season;
  season.film().currentPopularity = 100;
  season.random.unit(1).unit(0);  // 0.9 stay, and talk adds a quarter
  season.advance(1);
  ASSERT_EQ(season.record().premiereViews.size(), 2U);
  EXPECT_NEAR(season.record().premiereViews.back(), 1.15e6, 1e-3);
  EXPECT_EQ(season.record().hoursWatched.back(), 862'500);
  EXPECT_EQ(season.record().weeksTracked.back(), releaseWeek + 1);
  EXPECT_EQ(season.world.saveAllRatings[0].premiereViews.size(), 1U);  // another series' figures
}

TEST(Episode, HowManyStayIsDecidedByBothScoresAndBetweenTheBandsEverybodyDoes) {
  struct Case {
    double imbdRating;
    std::int64_t imbdMetascore;
    double least, most;
  };
  const Case cases[] = {
      {2, 40, 0.5, 0.8}, {6, 40, 0.6, 0.85}, {8, 60, 0.7, 0.9}, {9, 90, 0.8, 1.0}, {10, 90, 0.8, 1.1}};
  for (const Case& row : cases) {
    RunningSeason season;
    season.film().imbdRating = row.imbdRating;
    season.film().imbdMetascore = row.imbdMetascore;
    season.random.unit(0).unit(0.5).unit(1).unit(0.5);
    season.advance(1);
    EXPECT_NEAR(season.record().premiereViews[1], row.least * 1e6, 1e-3);
    season.advance(2);
    EXPECT_NEAR(season.record().premiereViews[2], row.least * row.most * 1e6, 1e-3);
  }
  RunningSeason between;
  between.film().imbdRating = 2.001;  // with 40: 3.0005
  between.film().imbdMetascore = 40;
  between.random.unit(0.5);
  between.advance(1);
  EXPECT_EQ(between.record().premiereViews[1], 1e6);
}

TEST(Episode, TheLeadWinsFansEveryWeekOfTheSeason) {
  RunningSeason season(3);
  season.project().isPrincipal = rolePart::principal;
  for (const std::int64_t week : {1, 2}) {
    season.random.unit(1).unit(0).unit(0);
    season.advance(week);
    EXPECT_EQ(season.world.fanGainCarry, 378 * week);  // 60% of 600 fans, at 1.05
  }
  season.advance(3);  // the season is over
  EXPECT_EQ(season.record().premiereViews.size(), 3U);
}

TEST(Episode, AMissedWeekIsNeverMadeUpForAndOneEpisodeHasNoWeeks) {
  RunningSeason missed;
  missed.advance(2);
  EXPECT_EQ(missed.record().weeksTracked.size(), 1U);
  RunningSeason single(1);
  single.advance(1);
  EXPECT_EQ(single.record().weeksTracked.size(), 1U);
}

}  // namespace
}  // namespace tb
