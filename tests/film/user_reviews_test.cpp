// A title's star histogram and audience reviews.

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

using UserReviews = test::RuleTest;

TEST_F(UserReviews, SkipsStarsWithFewRatings) {
  StarHistogram flop{};
  flop[0] = 95;
  flop[9] = 5;
  for (int draw = 0; draw < 5; ++draw) random.range(10, 9).any(4);
  EXPECT_EQ(drawUserReviews(game, rated(1, 100), flop).size(),
            5U);  // 5 % of the ratings are enough for reviews
  flop[0] = 96;
  for (int draw = 0; draw < 25; ++draw) random.range(10, 9);
  EXPECT_TRUE(drawUserReviews(game, rated(1, 101), flop).empty());
}

TEST_F(UserReviews, SkipsStarsWithoutRatings) {
  StarHistogram oneStar{};
  oneStar[2] = 4;
  for (int draw = 0; draw < 12; ++draw) random.range(10, draw % 2 == 0 ? 1 : 3);
  random.range(10, 2).any(4);
  for (int draw = 0; draw < 12; ++draw) random.range(10, 9);  // 25 draws of stars in total
  const std::vector<Reviews> reviews = drawUserReviews(game, rated(3, 4), oneStar);
  ASSERT_EQ(reviews.size(), 1U);
  EXPECT_EQ(reviews.front().rating, 3);
  EXPECT_TRUE(drawUserReviews(game, rated(0, 0), {}).empty());
}

}  // namespace
}  // namespace tb
