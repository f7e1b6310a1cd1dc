#include "career/renewals.h"

#include <gtest/gtest.h>

#include "film/catalogue.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Renewals : test::RuleTest {
  Renewals() {
    world.weekNumberForTracking = 61;
    world.weekNumber = 9;
    world.yearNumber = 2027;
    world.filmId = 500;
  }

  // Two of nine episodes of a first season that came out eleven weeks ago.
  Audition series() {
    return {.filmId = 7,
            .typeOfFilm = filmType::series,
            .isPrincipal = 1,
            .title = "Saltwater",
            .characterName = "Aaron Abbott",
            .numberOfEpisodesActed = 2,
            .numberOfEpisodesTotal = 9,
            .isContinued = 0,
            .seasonNumber = 1,
            .weekReleased = 50,
            .payment = 1000,
            .buyout = 300,
            .residual = 0.015,
            .royalty = 2,
            .budget = 400'000,
            .source = "The Agency",
            .sourceId = 77,
            .funnelStage = funnel::wrapped,
            .didBribe = 30,
            .rehearsalBoostCount = 4,
            .performanceBoostCount = 5,
            .promoteHypeCount = 1,
            .directorRating = 31,
            .didNegotiate = 1};
  }
  void give(const Audition& project, double rating, std::int64_t metascore = 55) {
    world.saveAllAuditionList.assign(std::vector{project});
    world.saveAllFilmList = {{.filmId = project.filmId, .imbdRating = rating, .imbdMetascore = metascore}};
    world.WeekFeed.clear();
    world.activityTracker.clear();
  }
  std::int64_t continued() const { return world.saveAllAuditionList[0].isContinued; }
  const Audition& next() const { return world.saveAllAuditionList[1]; }

  // The schedule, the preparation and the hype of the next instalment: audition in 15 weeks, 20 more to the
  // wrap, 15 to the release.
  void scriptInstalment() {
    random.range(14, 13).range(17, 16).range(8, 7);
    random.unit(0).unit(1).unit(0.5).range(31, 20).range(101, 0).range(4, 0);
  }
};

TEST_F(Renewals, OnlyAReleasedSeriesOfAPrincipalIsJudgedFromTheEleventhWeek) {
  const auto expectLeft = [this](std::int64_t isContinued) {
    renewSeries(game);
    EXPECT_EQ(continued(), isContinued);
    expectNothingTold();
  };
  Audition project = series();
  project.funnelStage = funnel::booked;
  give(project, 9);
  expectLeft(0);
  project = series();
  project.weekReleased = 51;
  give(project, 9);
  expectLeft(0);
  project.isPrincipal = 0;  // retired at once
  give(project, 9);
  expectLeft(-1);
  give(series(), 9);
  world.saveAllFilmList.clear();
  expectLeft(-1);
  for (const std::int64_t done : {-1, 1, 2}) {
    project = series();
    project.isContinued = done;
    give(project, 9);
    expectLeft(done);
  }
  project = series();
  project.typeOfFilm = filmType::studentFilm;
  give(project, 9);
  renewSaga(game);
  expectLeft(0);
}

TEST_F(Renewals, ARatingUpToFourEndsTheSeriesAndMoreGivesItAChance) {
  for (const double rating : {1.0, 4.0}) {
    game.told = {};
    give(series(), rating);
    random.range(49, 0);
    renewSeries(game);
    EXPECT_EQ(continued(), -1);
    expectToldInBothLists("Saltwater has been canceled.");
  }
  give(series(), 4.005);  // between the bands: asked again next week
  renewSeries(game);
  EXPECT_EQ(continued(), 0);
  give(series(), 8);
  random.range(12, 7).range(49, 0);  // 8 is not above 8
  renewSeries(game);
  EXPECT_EQ(continued(), -1);
  give(series(), 8.1);
  random.range(12, 7);
  scriptInstalment();
  random.any(5);
  renewSeries(game);
  EXPECT_EQ(continued(), 1);
}

// Nine of the twelve episodes that were drawn, in week 96, the 44th of its year, at a hype of a third of the
// director's 9 and the level's 1.
TEST_F(Renewals, ANewSeasonIsBookedOnNewTerms) {
  world.experience = 100;
  give(series(), 8, 69);  // (8 + 6) / 2 = 7: pay 1.25 to 1.75, royalty 1.04 to 1.06
  random.range(12, 6);
  scriptInstalment();
  random.unit(0.5).unit(1).unit(0.5).range(3, 2).range(49, 0);
  renewSeries(game);
  ASSERT_EQ(world.saveAllAuditionList.size(), 2u);
  EXPECT_EQ(continued(), 1);

  EXPECT_EQ(test::changes(series(), next()),
            "filmId 501, numberOfEpisodesActed 9, parentSeriesFilmId 7, seasonNumber 2, workYear 2027, "
            "weekSubmitted 61, weekAudition 76, weekToWork 96, weekReleased 111, payment 1500, buyout 0, "
            "royalty 2.1, budget 600000, funnelStage 2, didBribe 0, rehearsalRating 0.69, "
            "rehearsalBoostCount 0, performanceRating 0.5175, performanceBoostCount 0, hypeRating 3, "
            "didNegotiate 0");
  expectToldInBothLists("Saltwater has been renewed for season 2!");
  renewSeries(game);  // decided once
  EXPECT_EQ(world.saveAllAuditionList.size(), 2u);
}

TEST_F(Renewals, LaterSeasonsKeepTheFirstAsTheirParentAndWhatIsNotTheirsIsCleared) {
  Audition second = series();
  second.filmId = 90;
  second.parentSeriesFilmId = 7;
  second.seasonNumber = 2;
  second.royalty = 0;
  second.budget = 2.9e9;
  second.didAct = 0;
  second.equityPercentage = 10;
  second.equityDollarsInvested = 5000;
  second.franchise = 3;
  second.franchiseId = 4;
  give(second, 8, 69);
  random.range(12, 0);
  scriptInstalment();
  random.unit(0.5).unit(0).range(3, 0).range(49, 0);  // no draw for a royalty that is not there
  renewSeries(game);
  EXPECT_EQ(next().seasonNumber, 3);
  EXPECT_EQ(next().parentSeriesFilmId, 7);
  EXPECT_EQ(next().numberOfEpisodesActed, 8);
  EXPECT_EQ(next().royalty, 0);
  EXPECT_EQ(next().budget, 3e9);
  EXPECT_EQ(next().didAct, 1);
  EXPECT_EQ(next().equityPercentage + next().equityDollarsInvested, 0);
  EXPECT_TRUE(next().franchise == -1 && next().franchiseId == -1);
}

TEST_F(Renewals, PayGoesByTheBandsOfSuccessAndByATenthBetweenThem) {
  struct Case {
    double rating;
    std::int64_t metascore;
    double pay;
    double royalty;
  };
  const Case cases[] = {
      {4.1, 19, 1.05, 1.01},    // 2.55
      {5, 19, 1.05, 1.01},      // 3
      {5.015, 19, 1.1, 1.1},    // 3.0075: between the bands
      {5.02, 19, 1.175, 1.03},  // 3.01
      {8, 29, 1.175, 1.03},     // 5
      {8.01, 29, 1.1, 1.1},     // 5.005
      {8.02, 29, 1.5, 1.05},    // 5.01
      {8, 60, 1.5, 1.05},       // 7
      {8.03, 60, 1.75, 1.07},   // 7.015
      {8, 90, 1.75, 1.07},      // 8.5
      {8.001, 90, 1.1, 1.1},    // 8.5005
      {9, 100, 2, 1.1},         // 9.5
  };
  for (const Case& each : cases) {
    give(series(), each.rating, each.metascore);
    random.range(12, 0);
    scriptInstalment();
    random.unit(0.5).unit(0.5).unit(0.5).any(2);
    renewSeries(game);
    EXPECT_NEAR(next().budget, each.pay * 400'000, 1e-6) << each.rating;
    EXPECT_NEAR(next().payment, (each.pay + 1) * 0.5 * 1000, 1e-9) << each.rating;
    EXPECT_NEAR(next().royalty, each.royalty * 2, 1e-9) << each.rating;
  }
}

struct Sagas : Renewals {
  const MovieFranchise& first = movieFranchises()[0];
  const MovieFranchise& second = movieFranchises()[1];

  Audition film() {
    Audition project = series();
    project.typeOfFilm = filmType::feature;
    project.title = first.title;
    project.numberOfEpisodesActed = 0;
    project.franchise = first.movieNumber;
    project.franchiseId = first.id;
    return project;
  }
};

TEST_F(Sagas, GoOnWithTheNextEntryOfTheSameSaga) {
  give(film(), 8);
  renewSeries(game);  // no series
  random.range(12, 0);
  scriptInstalment();
  random.any(3).range(25, 0);
  renewSaga(game);
  ASSERT_EQ(world.saveAllAuditionList.size(), 2u);
  EXPECT_EQ(next().title, second.title);
  EXPECT_EQ(next().description, second.shortSummary);
  EXPECT_EQ(next().imageString, second.imageString);
  EXPECT_EQ(next().genres, second.genre);
  EXPECT_TRUE(next().roleDescription.contains("Aaron Abbott"));
  EXPECT_EQ(next().franchise, second.movieNumber);
  EXPECT_EQ(next().franchiseId, first.id);
  EXPECT_EQ(next().seasonNumber, 2);
  EXPECT_EQ(next().parentSeriesFilmId, 7);
  EXPECT_EQ(next().numberOfEpisodesActed, 0);
  EXPECT_EQ(next().isContinued, 0);
  expectToldInBothLists(first.title + " was only the beginning. You have been booked for " + second.title +
                        ".");
}

TEST_F(Sagas, EndWithTheirLastEntryOrABadRating) {
  Audition last = film();
  last.franchise = 99;
  give(last, 10);
  random.range(12, 0).range(25, 0);
  renewSaga(game);
  EXPECT_EQ(continued(), -1);
  expectToldInBothLists("The saga is over. " + first.title + " was its last word.");
  give(film(), 3);
  random.range(25, 0);
  renewSaga(game);
  EXPECT_EQ(continued(), -1);
  EXPECT_EQ(world.saveAllAuditionList.size(), 1u);

  Audition alone = film();  // not of a saga: nothing to go on with, and nothing to say
  alone.franchiseId = -1;
  give(alone, 10);
  renewSaga(game);
  EXPECT_EQ(continued(), 0);
  expectNothingTold();
}

}  // namespace
}  // namespace tb
