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

Scores rolled(test::ScratchGame& scratch, std::int64_t typeOfFilm, std::int64_t directorRating) {
  Audition project = test::projectOf(typeOfFilm);
  project.directorRating = directorRating;
  const Scores scores = rollScores(scratch.game, project);
  EXPECT_EQ(scratch.random.left(), 0U);
  return scores;
}

// The draws that every release makes before its band is looked up: rating, metascore, both counts.
void firstPair(ScratchGame& scratch, std::int64_t reach) {
  scratch.random.unit(0).range(reach - 4, 0).range(6, 0).range(3, 0);
}

TEST(ScoreRoll, ABeginnersFilmIsRatedOneAndAMetascoreOfTenAtMost) {
  ScratchGame scratch;
  firstPair(scratch, 10);
  scratch.random.any(1).unit(1).range(6, 5).range(4'976, 4'975).range(25, 24);
  const Scores scores = rolled(scratch, filmType::feature, 5);
  EXPECT_EQ(scores.imbdRating, 1);
  EXPECT_EQ(scores.imbdMetascore, 10);
  EXPECT_EQ(scores.numImbdRatings, 5'000);
  EXPECT_EQ(scores.numMetascoreRatings, 25);
}

struct Band {
  std::int64_t directorRating;
  Bank review;
  double lowest;  // rating
  double highest;
  std::int64_t lowestMetascore;
  std::int64_t highestMetascore;
  std::int64_t ratings[2];  // fewest, and how many more
  std::int64_t critics[2];
};

TEST(ScoreRoll, EachStandingHasItsReviewsItsScoresAndItsAudience) {
  const Band bands[] = {
      {30, Bank::longReviewBank1, 1, 3, 5, 30, {25, 4'976}, {1, 25}},
      {31, Bank::longReviewBank3, 2, 3, 20, 31, {1'000, 99'001}, {5, 46}},
      {71, Bank::longReviewBank3, 2, 7, 20, 71, {1'000, 99'001}, {5, 46}},
      {72, Bank::longReviewBank4, 3, 9.9, 40, 92, {1'000, 1'999'001}, {5, 96}},
      {78, Bank::longReviewBank4, 3, 9.9, 40, 98, {1'000, 1'999'001}, {5, 96}},
  };
  for (const Band& band : bands) {
    ScratchGame scratch;
    firstPair(scratch, band.directorRating);
    const auto reviews = static_cast<std::int64_t>(rowsOf(band.review).size());
    const double top = static_cast<double>(band.directorRating / 10) + (band.directorRating >= 72 ? 3 : 0);
    const double share = (band.highest - band.lowest) / (top - band.lowest);
    scratch.random.range(reviews, reviews - 1).unit(share);
    scratch.random.range(band.highestMetascore - band.lowestMetascore + 1,
                         band.highestMetascore - band.lowestMetascore);
    scratch.random.range(band.ratings[1], 0).range(band.critics[1], 0);
    const Scores scores = rolled(scratch, filmType::series, band.directorRating);
    EXPECT_NEAR(scores.imbdRating, band.highest, 1e-9) << band.directorRating;
    EXPECT_EQ(scores.imbdMetascore, band.highestMetascore) << band.directorRating;
    EXPECT_EQ(scores.numImbdRatings, band.ratings[0]) << band.directorRating;
    EXPECT_EQ(scores.numMetascoreRatings, band.critics[0]) << band.directorRating;
    EXPECT_EQ(scores.featuredReview,
              fill(rowsOf(band.review).back(),
                   {{"title", "Salt Road"}, {"director", "Mina Falk"}, {"name", ""}, {"genre", "Western"}}));
  }
}

TEST(ScoreRoll, SmallFilmsOfNotedDirectorsDrawCrowdsOfTheirOwnSize) {
  struct Case {
    std::int64_t typeOfFilm;
    std::int64_t directorRating;
    std::int64_t ratings[2];
    std::int64_t critics[2];
  };
  const Case cases[] = {
      {filmType::studentFilm, 30, {1, 10}, {1, 5}},   {filmType::shortFilm, 30, {1, 10}, {1, 5}},
      {filmType::studentFilm, 60, {1, 10}, {1, 5}},   {filmType::shortFilm, 60, {1, 10}, {1, 5}},
      {filmType::studentFilm, 75, {5, 996}, {5, 21}}, {filmType::shortFilm, 75, {10, 991}, {5, 96}},
  };
  for (const Case& row : cases) {
    ScratchGame scratch;
    firstPair(scratch, row.directorRating);
    scratch.random.any(3).range(row.ratings[1], row.ratings[1] - 1).range(row.critics[1], row.critics[1] - 1);
    const Scores scores = rolled(scratch, row.typeOfFilm, row.directorRating);
    EXPECT_EQ(scores.numImbdRatings, row.ratings[0] + row.ratings[1] - 1);
    EXPECT_EQ(scores.numMetascoreRatings, row.critics[0] + row.critics[1] - 1);
  }
}

TEST(ScoreRoll, ACommercialIsJudgedLikeAnythingElseByAHandfulOfPeople) {
  ScratchGame scratch;
  scratch.random.unit(0).range(46, 0).range(6, 5).range(3, 2).any(3);
  const Scores scores = rolled(scratch, filmType::commercial, 50);
  EXPECT_EQ(scores.numImbdRatings, 10);
  EXPECT_EQ(scores.numMetascoreRatings, 3);
  EXPECT_NEAR(scores.imbdRating, 2, 1e-9);
  EXPECT_FALSE(scores.featuredReview.empty());
}

TEST(ScoreRoll, PerfectScoresAreDrawnAgainBelowPerfection) {
  ScratchGame scratch;
  firstPair(scratch, 95);
  scratch.random.any(1).unit(1).range(76, 75).any(2).unit(0.5).range(11, 10);
  const Scores scores = rolled(scratch, filmType::feature, 95);
  EXPECT_NEAR(scores.imbdRating, 9, 1e-9);
  EXPECT_EQ(scores.imbdMetascore, 100);
}

TEST(ScoreRoll, BeyondTheScaleThereIsNoReviewAndTheFirstRollStands) {
  ScratchGame scratch;
  scratch.random.unit(1).range(147, 20).range(6, 1).range(3, 1).unit(0);
  const Scores scores = rolled(scratch, filmType::feature, 151);
  EXPECT_NEAR(scores.imbdRating, 8, 1e-9);
  EXPECT_EQ(scores.imbdMetascore, 25);
  EXPECT_EQ(scores.numImbdRatings, 6);
  EXPECT_EQ(scores.featuredReview, "");
}

TEST(Release, AShortFilmKeepsItsScoresAndItsPopularityFollowsItsQuality) {
  ReleasedGame released(test::projectOf(filmType::shortFilm));
  released.film().currentPopularity = 30;
  released.random.any(4).any(1).unit(1).range(31, 30).any(2);  // rated 5 and 50: quality 50
  released.advance(0);
  EXPECT_NEAR(released.film().imbdRating, 5, 1e-9);
  EXPECT_EQ(released.film().imbdMetascore, 50);
  EXPECT_EQ(released.film().numImbdRatings, 1);
  EXPECT_EQ(released.film().featuredReviews.size(), 1U);
  EXPECT_EQ(released.film().lastWeekPopularity, 30);
  EXPECT_NEAR(released.film().currentPopularity, 20, 1e-9);
  EXPECT_TRUE(released.world().saveAllBoxOfficeList.empty());
  const Film scored = released.film();
  released.advance(1);
  EXPECT_EQ(released.film(), scored);
}

TEST(Release, NothingHappensBeforeTheWeekNorWithoutAFilm) {
  ReleasedGame early(test::projectOf(filmType::feature));
  early.advance(-1);
  EXPECT_EQ(early.film().numImbdRatings, 0);

  ReleasedGame lost(test::projectOf(filmType::feature));
  lost.world().saveAllFilmList.clear();
  for (const std::int64_t week : {0, 1}) lost.advance(week);
  EXPECT_TRUE(lost.world().saveAllBoxOfficeList.empty());
}

TEST(Release, TheLeadWinsFansAndNobodyElseDoes) {
  for (const auto& [part, fans] :
       {std::pair{rolePart::background, 0}, {rolePart::principal, 315}, {rolePart::ownProduction, 0}}) {
    Audition project = test::projectOf(filmType::studentFilm);
    project.isPrincipal = part;
    ReleasedGame released(project);
    released.random.any(4).any(1).unit(1).range(31, 30).any(2);
    if (part == rolePart::principal) released.random.unit(1);
    released.advance(0);
    EXPECT_EQ(released.world().fanGainCarry, fans);  // 50% of 600 fans, at 1.05
    EXPECT_EQ(released.world().totalFans, 0);
  }
}

TEST(FanGain, EveryBudgetHasItsSpreadAndNobodyBelievesSixBillion) {
  struct Case {
    double budget;
    double fewest;
    double most;
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
  for (const auto& [budget, fewest, most] : cases) {
    ScratchGame scratch;
    scratch.game.world.agentFanBonus = 1'000;
    scratch.random.unit(0).unit(1);
    EXPECT_EQ(titleFanGain(scratch.game, budget, 100, 1), static_cast<std::int64_t>(fewest * 1'050))
        << budget;
    EXPECT_EQ(titleFanGain(scratch.game, budget, 100, 1), static_cast<std::int64_t>(most * 1'050)) << budget;
  }
}

TEST(FanGain, GrowsWithFameAndIsNothingWithoutTheBonus) {
  struct Case {
    std::int64_t fans;
    double gain;  // at half the bonus, of 200 at quality 50, give or take the fraction that is cut off
  };
  const Case cases[] = {{100, 105},        {101, 110},         {1'001, 115},
                        {10'001, 120},     {100'001, 130},     {1'000'001, 140},
                        {10'000'001, 150}, {100'000'000, 150}, {100'000'001, 160}};
  for (const auto& [fans, gain] : cases) {
    ScratchGame scratch;
    scratch.game.world.totalFans = fans;
    scratch.game.world.agentFanBonus = 2;
    scratch.random.unit(1).unit(1);
    EXPECT_NEAR(static_cast<double>(titleFanGain(scratch.game, 50'000, 50, 1)), 2.0 * gain, 1) << fans;
    scratch.game.world.agentFanBonus = 0;
    EXPECT_EQ(titleFanGain(scratch.game, 50'000, 50, 1), 0);
  }
}

}  // namespace
}  // namespace tb
