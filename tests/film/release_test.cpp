// The week of release: scores by the director's standing, fans for the lead, popularity.

#include <gtest/gtest.h>

#include "banks/banks.h"
#include "film/fan_gain.h"
#include "film/score_roll.h"
#include "tests/film/wrapped_project.h"

namespace tb {
namespace {

using test::ReleasedGame;
using test::ScratchGame;

// A least value and how many more there are to draw from.
struct Spread {
  std::int64_t least, count;
  [[nodiscard]] std::int64_t most() const { return least + count - 1; }
};

struct ScoreRoll : test::RuleTest {
  Scores rolled(std::int64_t typeOfFilm, std::int64_t directorRating) {
    Audition project = test::projectOf(typeOfFilm);
    project.directorRating = directorRating;
    project.isPrincipal = rolePart::principal;
    return rollScores(game, project);
  }
  // The draws that every release makes before its band is looked up: rating, metascore, both counts.
  test::ScriptedRandom& scriptFirstPair(std::int64_t reach) {
    return random.unit(0).range(reach - 4, 0).range(6, 0).range(3, 0);
  }
};

TEST_F(ScoreRoll, ABeginnersFilmIsRatedOneAndAMetascoreOfTenAtMost) {
  scriptFirstPair(10).any(1).unit(1).range(6, 5).range(4'976, 4'975).range(25, 24);
  const Scores scores = rolled(filmType::feature, 5);
  EXPECT_EQ(scores.imbdRating, 1);
  EXPECT_EQ(scores.imbdMetascore, 10);
  EXPECT_EQ(scores.numImbdRatings, 5'000);
  EXPECT_EQ(scores.numMetascoreRatings, 25);
}

TEST_F(ScoreRoll, EachStandingHasItsReviewsItsScoresAndItsAudience) {
  struct Band {
    std::int64_t directorRating;
    Bank review;
    double lowest, highest, top;  // rating; the top is what could be drawn
    Spread metascore, ratings, critics;
  };
  const Band bands[] = {
      {30, Bank::longReviewBank1, 1, 3, 3, {5, 26}, {25, 4'976}, {1, 25}},
      {31, Bank::longReviewBank3, 2, 3, 3, {20, 12}, {1'000, 99'001}, {5, 46}},
      {71, Bank::longReviewBank3, 2, 7, 7, {20, 52}, {1'000, 99'001}, {5, 46}},
      {72, Bank::longReviewBank4, 3, 9.9, 10, {40, 53}, {1'000, 1'999'001}, {5, 96}},
      {78, Bank::longReviewBank4, 3, 9.9, 10, {40, 59}, {1'000, 1'999'001}, {5, 96}},
  };
  for (const Band& band : bands) {
    SCOPED_TRACE(band.directorRating);
    game.told = {};
    const auto reviews = static_cast<std::int64_t>(rowsOf(band.review).size());
    scriptFirstPair(band.directorRating).range(reviews, reviews - 1);
    random.unit((band.highest - band.lowest) / (band.top - band.lowest));
    random.range(band.metascore.count, band.metascore.count - 1);
    random.range(band.ratings.count, 0).range(band.critics.count, 0);
    const Scores scores = rolled(filmType::series, band.directorRating);
    EXPECT_NEAR(scores.imbdRating, band.highest, 1e-9);
    EXPECT_EQ(scores.imbdMetascore, band.metascore.most());
    EXPECT_EQ(scores.numImbdRatings, band.ratings.least);
    EXPECT_EQ(scores.numMetascoreRatings, band.critics.least);
    EXPECT_EQ(scores.featuredReview, fill(rowsOf(band.review).back(), {{"title", "Salt Road"},
                                                                       {"director", "Mina Falk"},
                                                                       {"name", ""},
                                                                       {"genre", "Western"},
                                                                       {"prop", "letter"},
                                                                       {"place", "hallway"}}));
  }
}

TEST_F(ScoreRoll, SmallFilmsOfNotedDirectorsDrawCrowdsOfTheirOwnSize) {
  struct Case {
    std::int64_t typeOfFilm, directorRating;
    Spread ratings, critics;
  };
  const Case cases[] = {
      {filmType::studentFilm, 30, {1, 10}, {1, 5}},   {filmType::shortFilm, 30, {1, 10}, {1, 5}},
      {filmType::studentFilm, 60, {1, 10}, {1, 5}},   {filmType::shortFilm, 60, {1, 10}, {1, 5}},
      {filmType::studentFilm, 75, {5, 996}, {5, 21}}, {filmType::shortFilm, 75, {10, 991}, {5, 96}},
  };
  for (const Case& row : cases) {
    scriptFirstPair(row.directorRating).any(3);
    random.range(row.ratings.count, row.ratings.count - 1).range(row.critics.count, row.critics.count - 1);
    const Scores scores = rolled(row.typeOfFilm, row.directorRating);
    EXPECT_EQ(scores.numImbdRatings, row.ratings.most());
    EXPECT_EQ(scores.numMetascoreRatings, row.critics.most());
  }
}

TEST_F(ScoreRoll, ACommercialIsJudgedLikeAnythingElseByAHandfulOfPeople) {
  random.unit(0).range(46, 0).range(6, 5).range(3, 2).any(3);
  const Scores scores = rolled(filmType::commercial, 50);
  EXPECT_EQ(scores.numImbdRatings, 10);
  EXPECT_EQ(scores.numMetascoreRatings, 3);
  EXPECT_NEAR(scores.imbdRating, 2, 1e-9);
  EXPECT_FALSE(scores.featuredReview.empty());
}

TEST_F(ScoreRoll, PerfectScoresAreDrawnAgainBelowPerfectionAndBeyondTheScaleTheFirstRollStands) {
  scriptFirstPair(95).any(1).unit(1).range(76, 75).any(2).unit(0.5).range(11, 10);
  const Scores perfect = rolled(filmType::feature, 95);
  EXPECT_NEAR(perfect.imbdRating, 9, 1e-9);
  EXPECT_EQ(perfect.imbdMetascore, 100);
  random.unit(1).range(147, 20).range(6, 1).range(3, 1).unit(0);
  const Scores beyond = rolled(filmType::feature, 151);
  EXPECT_NEAR(beyond.imbdRating, 8, 1e-9);
  EXPECT_EQ(beyond.imbdMetascore, 25);
  EXPECT_EQ(beyond.numImbdRatings, 6);
  EXPECT_EQ(beyond.featuredReview, "");
}

// The draws of a release that is rated 5 and 50: quality 50.
void scriptScores(ScratchGame& game) { game.random.any(5).unit(1).range(31, 30).any(2); }

TEST(Release, AShortFilmKeepsItsScoresAndItsPopularityFollowsItsQuality) {
  ReleasedGame released(filmType::shortFilm);
  released.film().currentPopularity = 30;
  scriptScores(released);
  released.advance(0);
  EXPECT_NEAR(released.film().imbdRating, 5, 1e-9);
  EXPECT_EQ(released.film().imbdMetascore, 50);
  EXPECT_EQ(released.film().numImbdRatings, 1);
  EXPECT_EQ(released.film().featuredReviews.size(), 1U);
  EXPECT_EQ(released.film().lastWeekPopularity, 30);
  EXPECT_NEAR(released.film().currentPopularity, 20, 1e-9);
  EXPECT_TRUE(released.world.saveAllBoxOfficeList.empty());
  const Film scored = released.film();
  released.advance(1);
  EXPECT_EQ(released.film(), scored);
}

TEST(Release, NothingHappensBeforeTheWeekNorWithoutAFilm) {
  ReleasedGame released(filmType::feature);
  released.advance(-1);
  EXPECT_EQ(released.film().numImbdRatings, 0);
  released.world.saveAllFilmList.clear();
  for (const std::int64_t week : {0, 1}) released.advance(week);
  EXPECT_TRUE(released.world.saveAllBoxOfficeList.empty());
}

TEST(Release, TheLeadWinsFansAndNobodyElseDoes) {
  for (const auto& [part, fans] :
       {std::pair{rolePart::background, 0}, {rolePart::principal, 315}, {rolePart::ownProduction, 0}}) {
    ReleasedGame released(filmType::studentFilm);
    released.project().isPrincipal = part;
    scriptScores(released);
    if (part == rolePart::principal) released.random.unit(1);
    released.advance(0);
    EXPECT_EQ(released.world.fanGainCarry, fans);  // 50% of 600 fans, at 1.05
    EXPECT_EQ(released.world.totalFans, 0);
  }
}

using FanGain = test::RuleTest;

TEST_F(FanGain, EveryBudgetHasItsSpreadAndNobodyBelievesSixBillion) {
  struct Case {
    double budget, fewest, most;
  };
  const Case cases[] = {{0, 0, 4},
                        {100, 0, 4},
                        {101, 0, 6},
                        {1'000, 0, 6},
                        {1'001, 0, 20},
                        {10'001, 0, 20},
                        {10'002, 0, 200},
                        {100'000, 0, 200},
                        {100'001, 25, 600},
                        {1'000'000, 25, 600},
                        {1'000'001, 100, 1'500},
                        {10'000'001, 200, 2'500},
                        {100'000'001, 500, 5'000},
                        {1'000'000'001, 1'000, 10'000},
                        {6'000'000'000, 1'000, 10'000},
                        {6'000'000'001, 0, 14},
                        {-1, 0, 14}};
  world.agentFanBonus = 1'000;
  for (const auto& [budget, fewest, most] : cases) {
    random.unit(0).unit(1);
    EXPECT_EQ(titleFanGain(game, budget, 100, 1), static_cast<std::int64_t>(fewest * 1'050)) << budget;
    EXPECT_EQ(titleFanGain(game, budget, 100, 1), static_cast<std::int64_t>(most * 1'050)) << budget;
  }
}

TEST_F(FanGain, GrowsWithFameAndIsNothingWithoutTheBonus) {
  // At half the bonus, of 200 at quality 50, give or take the fraction that is cut off.
  const std::pair<std::int64_t, double> cases[] = {{100, 105},        {101, 110},         {1'001, 115},
                                                   {10'001, 120},     {100'001, 130},     {1'000'001, 140},
                                                   {10'000'001, 150}, {100'000'000, 150}, {100'000'001, 160}};
  for (const auto& [fans, gain] : cases) {
    world.totalFans = fans;
    world.agentFanBonus = 2;
    random.unit(1).unit(1);
    EXPECT_NEAR(static_cast<double>(titleFanGain(game, 50'000, 50, 1)), 2.0 * gain, 1) << fans;
    world.agentFanBonus = 0;
    EXPECT_EQ(titleFanGain(game, 50'000, 50, 1), 0);
  }
}

}  // namespace
}  // namespace tb
