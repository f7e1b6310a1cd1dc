// The morning after a release: what is shown, and what the critics write on their cards.

#include "film/new_releases.h"

#include <gtest/gtest.h>

#include "banks/banks.h"
#include "tests/film/wrapped_project.h"

namespace tb {
namespace {

using test::ScratchGame;

Film filmOfLastWeek(std::int64_t id, std::int64_t typeOfFilm = filmType::feature) {
  return {.filmId = id,
          .imageString = "salt.png",
          .typeOfFilm = typeOfFilm,
          .title = "Salt Road",
          .movieDescription = "A long walk.",
          .genres = {"Western"},
          .directorName = "Mina Falk",
          .weekReleased = 19,
          .imbdRating = 7,
          .imbdMetascore = 50,
          .seasonNumber = -1};
}

TEST(NewReleases, AreThoseOfTheWeekThatEndedWithoutCommercials) {
  ScratchGame scratch;
  WorldState& world = scratch.game.world;
  world.weekNumberForTracking = 20;
  for (const std::int64_t week : {18, 19, 20}) {
    Film film = filmOfLastWeek(week);
    film.weekReleased = week;
    world.saveAllFilmList.push_back(film);
  }
  world.saveAllFilmList.push_back(filmOfLastWeek(4, filmType::commercial));
  world.saveAllFilmList.push_back(filmOfLastWeek(5, filmType::studentFilm));
  EXPECT_EQ(newReleases(world), (std::vector<std::size_t>{1, 4}));
}

TEST(NewReleases, AreOfferedForAWrappedProjectThatCameOutLastWeek) {
  struct Case {
    std::int64_t typeOfFilm;
    std::int64_t funnelStage;
    std::int64_t weekReleased;
    bool offered;
  };
  const Case cases[] = {{filmType::series, stage::wrapped, 19, true},
                        {filmType::series, stage::wrapped, 20, false},
                        {filmType::series, stage::wrapped, 18, false},
                        {filmType::series, stage::booked, 19, false},
                        {filmType::commercial, stage::wrapped, 19, false}};
  for (const Case& row : cases) {
    WorldState world;
    world.weekNumberForTracking = 20;
    world.saveAllAuditionList.push_back(
        {.typeOfFilm = row.typeOfFilm, .weekReleased = row.weekReleased, .funnelStage = row.funnelStage});
    offerRelease(world);
    EXPECT_EQ(world.releaseOffered, row.offered);
  }
}

TEST(NewReleases, EachHasACriticWithANameAPaperAndAReview) {
  ScratchGame scratch;
  WorldState& world = scratch.game.world;
  world.weekNumberForTracking = 20;
  world.myName = "Ada Quinn";
  world.newReleaseReviews.push_back({.filmTitle = "of another week"});
  world.saveAllFilmList.push_back(filmOfLastWeek(1));
  world.saveAllFilmList.push_back(filmOfLastWeek(2, filmType::series));
  const auto reviews = static_cast<std::int64_t>(rowsOf(Bank::longReviewBank4).size());
  scratch.random.range(9'999'900, 5).range(2, 1).range(120, 3).range(254, 9).range(27, 2).range(reviews, 1);
  scratch.random.range(9'999'900, 6).range(2, 0).range(120, 3).range(254, 9).range(27, 2).range(reviews, 1);
  writeReleaseReviews(scratch.game);
  EXPECT_EQ(scratch.random.left(), 0U);
  ASSERT_EQ(world.newReleaseReviews.size(), 2U);
  const MetReview expected{
      .id = 105,
      .filmTitle = "Salt Road",
      .score = 50,
      .reviewString = fill(
          rowsOf(Bank::longReviewBank4)[1],
          {{"title", "Salt Road"}, {"director", "Mina Falk"}, {"name", "Ada Quinn"}, {"genre", "Western"}}),
      .reviewerName = rowsOf(Bank::femaleFirstNames)[3] + " " + rowsOf(Bank::lastNames)[9],
      .reviewerCompany = rowsOf(Bank::reviewerCompanies)[2],
      .starString = "★★★★",
      .filmType = "Movie",
      .description = "A long walk.",
      .imageString = "salt.png",
      .season = -1};
  EXPECT_EQ(world.newReleaseReviews[0], expected);
  EXPECT_EQ(world.newReleaseReviews[1].filmType, "TV");
  EXPECT_EQ(world.newReleaseReviews[1].reviewerName,
            rowsOf(Bank::maleFirstNames)[3] + " " + rowsOf(Bank::lastNames)[9]);
}

TEST(NewReleases, StarsFollowFromBothScoresAndAGapLeavesACriticSpeechless) {
  struct Case {
    double imbdRating;
    std::int64_t imbdMetascore;
    std::string stars;
    bool hasReview;
  };
  const Case cases[] = {{1, 20, "★", true},      {1.99, 20, "★", false}, {2, 20, "★★", true},
                        {4, 40, "★★★", true},    {6, 60, "★★★★", true},  {8, 80, "★★★★★", true},
                        {10, 100, "★★★★★", true}};
  for (const Case& row : cases) {
    ScratchGame scratch;
    scratch.game.world.weekNumberForTracking = 20;
    Film film = filmOfLastWeek(1);
    film.imbdRating = row.imbdRating;
    film.imbdMetascore = row.imbdMetascore;
    film.genres = {};
    scratch.game.world.saveAllFilmList.push_back(film);
    scratch.random.any(row.hasReview ? 6 : 5);
    writeReleaseReviews(scratch.game);
    EXPECT_EQ(scratch.random.left(), 0U);
    EXPECT_EQ(scratch.game.world.newReleaseReviews.front().starString, row.stars);
    EXPECT_EQ(!scratch.game.world.newReleaseReviews.front().reviewString.empty(), row.hasReview);
  }
}

}  // namespace
}  // namespace tb
