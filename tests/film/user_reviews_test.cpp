// What a title's page shows of its audience: stars, shares and reviews.

#include "film/user_reviews.h"

#include <gtest/gtest.h>

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

using UserReviewCards = test::RuleTest;

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
