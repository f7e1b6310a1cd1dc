// The morning after a release: what is shown, and what the critics write on their cards.

#include "film/new_releases.h"

#include <gtest/gtest.h>

#include "banks/banks.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct NewReleases : test::RuleTest {
  NewReleases() {
    world.weekNumberForTracking = 20;
    world.myName = "Ada Quinn";
  }
  Film& add(std::int64_t typeOfFilm, std::int64_t weekReleased = 19) {
    world.saveAllFilmList.push_back({.imageString = "salt.png",
                                     .typeOfFilm = typeOfFilm,
                                     .title = "Salt Road",
                                     .movieDescription = "A long walk.",
                                     .genres = {"Western"},
                                     .directorName = "Mina Falk",
                                     .weekReleased = weekReleased,
                                     .imbdRating = 7,
                                     .imbdMetascore = 50,
                                     .seasonNumber = -1});
    return world.saveAllFilmList.edit(world.saveAllFilmList.size() - 1);
  }
};

TEST_F(NewReleases, AreThoseOfTheWeekThatEndedWithoutCommercials) {
  for (const std::int64_t week : {18, 19, 20}) add(filmType::feature, week);
  add(filmType::commercial);
  add(filmType::studentFilm);
  EXPECT_EQ(newReleases(world), (std::vector<std::size_t>{1, 4}));
}

TEST_F(NewReleases, AreOfferedForAWrappedProjectThatCameOutLastWeek) {
  struct Case {
    std::int64_t typeOfFilm, funnelStage, weekReleased;
    bool offered;
  };
  const Case cases[] = {{filmType::series, funnel::wrapped, 19, true},
                        {filmType::series, funnel::wrapped, 20, false},
                        {filmType::series, funnel::wrapped, 18, false},
                        {filmType::series, funnel::booked, 19, false},
                        {filmType::commercial, funnel::wrapped, 19, false}};
  for (const auto& [type, funnel_stage, week, offered] : cases) {
    world.saveAllAuditionList = {{.typeOfFilm = type, .weekReleased = week, .funnelStage = funnel_stage}};
    world.releaseOffered = false;
    offerRelease(world);
    EXPECT_EQ(world.releaseOffered, offered);
  }
}

TEST_F(NewReleases, EachHasACriticWithANameAPaperAndAReview) {
  world.newReleaseReviews.push_back({.filmTitle = "of another week"});
  add(filmType::feature);
  add(filmType::series);
  const auto& bank = rowsOf(Bank::longReviewBank4);
  for (const std::int64_t woman : {1, 0}) {
    random.range(9'999'900, 6 - woman).range(2, woman).range(120, 3).range(254, 9).range(27, 2);
    random.range(std::ssize(bank), 1);
  }
  writeReleaseReviews(game);
  ASSERT_EQ(world.newReleaseReviews.size(), 2U);
  const MetReview expected{
      .id = 105,
      .filmTitle = "Salt Road",
      .score = 50,
      .reviewString = fill(
          bank[1],
          {{"title", "Salt Road"}, {"director", "Mina Falk"}, {"name", "Ada Quinn"}, {"genre", "Western"}}),
      .reviewerName = rowsOf(Bank::femaleFirstNames)[3] + " " + rowsOf(Bank::lastNameBank)[9],
      .reviewerCompany = rowsOf(Bank::reviewerCompanyBank)[2],
      .starString = "★★★★",
      .filmType = "Movie",
      .description = "A long walk.",
      .imageString = "salt.png",
      .season = -1};
  EXPECT_EQ(world.newReleaseReviews[0], expected);
  EXPECT_EQ(world.newReleaseReviews[1].filmType, "TV");
  EXPECT_TRUE(world.newReleaseReviews[1].reviewerName.starts_with(rowsOf(Bank::maleFirstNames)[3]));
}

TEST_F(NewReleases, StarsFollowFromBothScoresAndAGapLeavesACriticSpeechless) {
  struct Case {
    double imbdRating;
    std::int64_t imbdMetascore;
    std::string stars;
    bool hasReview = true;
  };
  const Case cases[] = {{1, 20, "★"},    {1.99, 20, "★", false}, {2, 20, "★★"},     {4, 40, "★★★"},
                        {6, 60, "★★★★"}, {8, 80, "★★★★★"},       {10, 100, "★★★★★"}};
  for (const auto& [rating, metascore, stars, has_review] : cases) {
    world.saveAllFilmList.clear();
    Film& film = add(filmType::feature);
    film.imbdRating = rating;
    film.imbdMetascore = metascore;
    film.genres = {};
    random.any(has_review ? 6 : 5);
    writeReleaseReviews(game);
    EXPECT_EQ(world.newReleaseReviews.front().starString, stars);
    EXPECT_EQ(!world.newReleaseReviews.front().reviewString.empty(), has_review);
  }
}

}  // namespace
}  // namespace tb
