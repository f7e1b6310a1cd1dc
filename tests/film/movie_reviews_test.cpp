// What the player thinks of titles, and the lists of all time.

#include "film/movie_reviews.h"

#include <gtest/gtest.h>

#include "banks/banks.h"
#include "film/top_titles.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using test::ScratchGame;

TEST(Rating, StarsAreGivenOnce) {
  ScratchGame scratch;
  scratch.game.world.saveAllFilmList = {{.filmId = 1}, {.filmId = 2}};
  rateFilm(scratch.game, 1, 9);
  rateFilm(scratch.game, 1, 2);
  EXPECT_EQ(scratch.game.world.saveAllFilmList[1].myRating, 9);
  EXPECT_EQ(scratch.game.world.saveAllFilmList[0].myRating, 0);
  EXPECT_TRUE(scratch.store.contains("saveAllFilmList"));
}

TEST(Reviewing, CostsTheEnergyOfAnEvening) {
  ScratchGame scratch;
  WorldState& world = scratch.game.world;
  world.totalEnergyAvailable = 25;
  EXPECT_FALSE(startReview(scratch.game));
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  EXPECT_EQ(scratch.store.value("totalEnergyAvailable"), plist::Value{std::int64_t{0}});
  world.totalEnergyAvailable = 24;
  const Refusal refusal = startReview(scratch.game);
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(world.totalEnergyAvailable, 24);
}

TEST(Reviewing, AnyTitleOfTheCatalogueCanCome) {
  ScratchGame scratch;
  scratch.random.range(210, 0).range(210, 209);
  EXPECT_EQ(drawTitleToReview(scratch.random).title, "A Keeper Unaccounted For");
  EXPECT_EQ(drawTitleToReview(scratch.random).year, 1938);
  for (const CatalogueTitle& row : rateMovieCatalogue()) {
    EXPECT_FALSE(row.title.empty() || row.description.empty());
    EXPECT_TRUE(row.year > 1900 && row.year <= 2026) << row.title;
    EXPECT_TRUE(row.imageString.ends_with(".png")) << row.title;
  }
}

TEST(Reviewing, AMadeUpReviewFitsItsStars) {
  struct Case {
    std::int64_t rating;
    Bank middle;
    Bank last;
  };
  const Case cases[] = {
      {1, Bank::reviewMiddle1, Bank::reviewLast1}, {2, Bank::reviewMiddle1, Bank::reviewLast1},
      {3, Bank::reviewMiddle2, Bank::reviewLast2}, {6, Bank::reviewMiddle3, Bank::reviewLast3},
      {7, Bank::reviewMiddle4, Bank::reviewLast4}, {10, Bank::reviewMiddle5, Bank::reviewLast5}};
  for (const auto& [rating, middle, last] : cases) {
    ScratchGame scratch;
    scratch.random.range(30, 29).range(6, 0).range(6, 5);
    EXPECT_EQ(
        generatedReview(scratch.random, rating),
        rowsOf(Bank::reviewFirstSentence)[29] + " " + rowsOf(middle).front() + " " + rowsOf(last).back());
  }
}

TEST(Reviewing, AReviewNeedsStarsAndWordsAndComesFirst) {
  ScratchGame scratch;
  WorldState& world = scratch.game.world;
  world.weekNumber = 7;
  world.yearNumber = 2031;
  world.weekNumberForTracking = 267;
  world.saveAllMovieReviews = {{.title = "Older"}};
  EXPECT_EQ(submitReview(scratch.game, "Loud Cousins", 0, "Fine."),
            (Notice{.title = "⭐️ Choose a Rating! ⭐️", .message = "\nYou need to choose a rating first."}));
  EXPECT_EQ(
      submitReview(scratch.game, "Loud Cousins", 4, " \n "),
      (Notice{.title = "⭐️ Leave a Review! ⭐️",
              .message = "\nWrite a short review or hit the green star for a randomly generated review!"}));
  EXPECT_EQ(world.saveAllMovieReviews.size(), 1U);
  EXPECT_FALSE(submitReview(scratch.game, "Loud Cousins", 1, " Fine.\n"));
  ASSERT_EQ(world.saveAllMovieReviews.size(), 2U);
  const MovieReview review{.title = "Loud Cousins",
                           .review = "Fine.",
                           .rating = 1,
                           .weekNumber = 7,
                           .yearNumber = 2031,
                           .weekNumberForTracking = 267};
  EXPECT_EQ(world.saveAllMovieReviews.front(), review);
  EXPECT_TRUE(scratch.store.contains("saveAllMovieReviews"));
}

TEST(TopTitles, SeasonsRatedAboveEightStandAmongTheBestOfAllTime) {
  WorldState world;
  const auto add = [&](std::int64_t id, std::int64_t typeOfFilm, double rating) {
    world.saveAllFilmList.push_back(
        {.filmId = id, .typeOfFilm = typeOfFilm, .title = "Ours", .imbdRating = rating});
  };
  add(1, filmType::series, 8.0);
  add(2, filmType::series, 9.65);
  add(3, filmType::feature, 9.9);
  add(4, filmType::series, tvRecords()[9].imdbRating);
  const TopTitles lists = topTitles(world);
  ASSERT_EQ(lists.shows.size(), 250U);
  EXPECT_EQ(lists.shows[0].filmId, 2);
  EXPECT_EQ(lists.shows[1].title, tvRecords()[0].title);
  EXPECT_EQ(placeOf(lists, 2), 1U);
  // Equal to a built-in series, the player's stands first: after all that are better, and season 2.
  const auto better = std::ranges::count_if(
      tvRecords(), [](const TVRecord& row) { return row.imdbRating > tvRecords()[9].imdbRating; });
  EXPECT_EQ(placeOf(lists, 4), static_cast<std::size_t>(better + 2));
  for (const std::int64_t unranked : {1, 3, 99}) EXPECT_EQ(placeOf(lists, unranked), std::nullopt);
}

TEST(TopTitles, AFilmIsFoundByItsIdAmongTheHighestGrossing) {
  WorldState world;
  world.saveAllFilmList.push_back({.filmId = 5, .title = "Ours"});
  world.saveAllBoxOfficeList.push_back({.filmId = 5, .openingWeekend = 60e6, .totalGross = 90e9});
  const TopTitles lists = topTitles(world);
  EXPECT_EQ(lists.movies.front().title, "Ours");
  EXPECT_EQ(placeOf(lists, 5), 1U);
}

}  // namespace
}  // namespace tb
