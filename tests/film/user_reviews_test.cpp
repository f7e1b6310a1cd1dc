// What a title's page shows of its audience: stars, shares and reviews.

#include "film/user_reviews.h"

#include <gtest/gtest.h>
#include <numeric>

#include "tests/scratch_game.h"

namespace tb {
namespace {

Film rated(double rating, std::int64_t ratings) {
  return {.isPrincipal = rolePart::principal,
          .title = "Salt Road",
          .directorName = "Mina Falk",
          .imbdRating = rating,
          .numImbdRatings = ratings};
}

TEST(StarHistogram, SpreadsTheRatingsInABellAroundTheMean) {
  // In hundredths: 2.28 4.82 9.30 14.81 18.79 and back. Six are left over for the largest fractions.
  EXPECT_EQ(starHistogram(rated(5.5, 100)), (StarHistogram{2, 5, 9, 15, 19, 19, 15, 9, 5, 2}));
  // 2.20 1.95 1.36 0.75 0.35 and less: three are left over.
  EXPECT_EQ(starHistogram(rated(1, 7)), (StarHistogram{2, 2, 2, 1}));
  EXPECT_EQ(starHistogram(rated(10, 3)), (StarHistogram{0, 0, 0, 0, 0, 0, 0, 1, 1, 1}));
}

TEST(StarHistogram, LosesNobodyAndIsEmptyBeforeTheRelease) {
  for (const std::int64_t ratings : {1, 9, 11, 4'999, 2'000'000}) {
    for (const double rating : {1.0, 4.37, 9.9}) {
      const StarHistogram stars = starHistogram(rated(rating, ratings));
      EXPECT_EQ(std::accumulate(stars.begin(), stars.end(), std::int64_t{0}), ratings);
    }
  }
  EXPECT_EQ(starHistogram(rated(0, 0)), StarHistogram{});
}

TEST(UserReviews, TheCountGrowsWithTheMetascore) {
  Film film = rated(7, 1'000);
  EXPECT_EQ(shownRatings(film), 1'180);
  film.imbdMetascore = 95;
  EXPECT_EQ(shownRatings(film), 2'130);
  film.numImbdRatings = 1;
  EXPECT_EQ(shownRatings(film), 2);
}

using UserReviewCards = test::RuleTest;

TEST_F(UserReviewCards, SpeakInTheWordsOfTheirStars) {
  world.myName = "Ada Quinn";
  StarHistogram everybody;
  everybody.fill(1);
  struct Level {
    std::int64_t star;
    Bank snippets, bodies;
  };
  const Level levels[] = {{0, Bank::userReviewSnippet1, Bank::userReviewBody1},
                          {3, Bank::userReviewSnippet2, Bank::userReviewBody2},
                          {4, Bank::userReviewSnippet3, Bank::userReviewBody3},
                          {7, Bank::userReviewSnippet4, Bank::userReviewBody4},
                          {9, Bank::userReviewSnippet5, Bank::userReviewBody5}};
  for (const Level& level : levels) {
    const std::int64_t rows = std::ssize(rowsOf(level.bodies));
    random.range(10, level.star).range(49, 0).range(rows, rows - 1).range(60, 1).range(80, 79);
  }
  const std::vector<Reviews> reviews = drawUserReviews(game, rated(7, 10), everybody);
  ASSERT_EQ(reviews.size(), 5U);  // and no draw more
  const auto filled = [](const std::string& row) {
    return fill(row, {{"title", "Salt Road"},
                      {"director", "Mina Falk"},
                      {"name", "Ada Quinn"},
                      {"prop", "letter"},
                      {"place", "hallway"}});
  };
  for (std::size_t index = 0; index < reviews.size(); ++index) {
    EXPECT_EQ(reviews[index].rating, levels[index].star + 1);
    EXPECT_EQ(reviews[index].snippet, filled(rowsOf(levels[index].snippets).front()));
    EXPECT_EQ(reviews[index].review, filled(rowsOf(levels[index].bodies).back()));
    EXPECT_EQ(reviews[index].username, "midnightWaffle");
  }
}

TEST_F(UserReviewCards, StarsThatFewerThanOneRatingInTwentyGaveAreDrawnInVain) {
  StarHistogram flop{};
  flop[0] = 95;
  flop[9] = 5;
  for (int draw = 0; draw < 5; ++draw) random.range(10, 9).any(4);
  EXPECT_EQ(drawUserReviews(game, rated(1, 100), flop).size(), 5U);  // five in a hundred are heard
  flop[0] = 96;
  for (int draw = 0; draw < 25; ++draw) random.range(10, 9);
  EXPECT_TRUE(drawUserReviews(game, rated(1, 101), flop).empty());
}

TEST_F(UserReviewCards, StarsThatNobodyGaveAreDrawnInVain) {
  StarHistogram one_star{};
  one_star[2] = 4;
  for (int draw = 0; draw < 12; ++draw) random.range(10, draw % 2 == 0 ? 1 : 3);
  random.range(10, 2).any(4);
  for (int draw = 0; draw < 12; ++draw) random.range(10, 9);  // 25 draws of stars in all
  const std::vector<Reviews> reviews = drawUserReviews(game, rated(3, 4), one_star);
  ASSERT_EQ(reviews.size(), 1U);
  EXPECT_EQ(reviews.front().rating, 3);
  EXPECT_TRUE(drawUserReviews(game, rated(0, 0), {}).empty());
}

}  // namespace
}  // namespace tb
