// The player's ratings and reviews.

#include "film/movie_reviews.h"

#include <gtest/gtest.h>

#include "banks/draw.h"
#include "banks/rate_movies_banks.h"
#include "film/catalogue.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using MovieReviews = test::RuleTest;

TEST_F(MovieReviews, RatesAFilmOnce) {
  world.saveAllFilmList = {{.filmId = 1}, {.filmId = 2}};
  for (const std::int64_t stars : {9, 2}) rateFilm(game, 2, stars);
  EXPECT_EQ(test::shown(world.saveAllFilmList), "(filmId 1)(filmId 2, myRating 9)");
}

TEST_F(MovieReviews, NeedsEnergyAndWords) {
  world.totalEnergyAvailable = 24;
  EXPECT_EQ(startReview(game)->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(submitReview(game, "Loud Cousins", 4, " \n ")->title, "⭐️ Leave a Review! ⭐️");
  EXPECT_FALSE(submitReview(game, "Loud Cousins", 1, " Fine.\n"));
  EXPECT_EQ(world.saveAllMovieReviews[0].review, "Fine.");
}

TEST_F(MovieReviews, DrawsAnyTitle) {
  random.range(210, 209);
  EXPECT_EQ(drawTitleToReview(random).title, rateMovieCatalogue().back().title);
  for (const CatalogueTitle& row : rateMovieCatalogue()) {
    EXPECT_FALSE(row.title.empty() || row.description.empty());
    EXPECT_TRUE(row.year > 1900 && row.year <= 2026) << row.title;
    EXPECT_TRUE(row.imageString.ends_with(".png")) << row.title;
  }
}

TEST_F(MovieReviews, GeneratesReviewsByStars) {
  struct Case {
    std::int64_t rating;
    Bank middle, last;
  };
  const Case cases[] = {
      {1, bank::reviewMiddle1, bank::reviewLast1}, {2, bank::reviewMiddle1, bank::reviewLast1},
      {3, bank::reviewMiddle2, bank::reviewLast2}, {6, bank::reviewMiddle3, bank::reviewLast3},
      {7, bank::reviewMiddle4, bank::reviewLast4}, {10, bank::reviewMiddle5, bank::reviewLast5}};
  for (const auto& [rating, middle, last] : cases) {
    random.range(30, 29).range(6, 0).range(6, 5);
    game.recentRows = {};
    const auto text = [](Bank bank, std::size_t row) {
      return std::string(markedRow(rowsOf(bank)[row]).text);
    };
    EXPECT_EQ(generatedReview(game, rating),
              text(bank::reviewFirstSentence, 29) + " " + text(middle, 0) + " " + text(last, 5));
  }
}

}  // namespace
}  // namespace tb
