// The RottenBanana page: percentages bent by a letter, badges, consensus and cards.

#include <algorithm>
#include <gtest/gtest.h>

#include "banks/banks.h"
#include "film/banana_reviews.h"
#include "film/banana_scores.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

TEST(BananaNudges, TheFirstLetterBendsBothScores) {
  struct Case {
    const char* title;
    double critic, audience;
  };
  const Case cases[] = {{"apple", 0.94, 0.88},  {"Apple", 0.94, 0.88},
                        {"Better", 0.93, 1.06}, {"Moon", 0.82, 0.95},
                        {"Night", 1.06, 1.05},  {"Harbor", 0.87, 1.15},
                        {"Paper", 1.08, 1.18},  {"Kettle", 0.84, 0.82},
                        {"Unit", 1.13, 0.85},   {"Zebra", 1.18, 1.08},
                        {"9 Lives", 1, 1},      {" Apple", 1, 1},
                        {"Élan", 1, 1},         {"", 1, 1}};
  for (const auto& [title, critic, audience] : cases) {
    EXPECT_NEAR(criticNudge(title), critic, 1e-12) << title;
    EXPECT_NEAR(audienceNudge(title), audience, 1e-12) << title;
  }
}

Film filmOf(const std::string& title, double rating, std::int64_t metascore, std::int64_t ratings) {
  return {.title = title,
          .genres = {"Sci-Fi"},
          .directorName = "Mina Falk",
          .weekReleased = 10,
          .imbdRating = rating,
          .numImbdRatings = ratings,
          .imbdMetascore = metascore,
          .numMetascoreRatings = 12};
}

TEST(BananaScores, BadgesAreEarnedAtTheirThresholds) {
  struct Case {
    const char* title;
    double rating;
    std::int64_t metascore, ratings;
    const char *critics, *audience;
  };
  const Case cases[] = {{"7", 9.0, 75, 500, "certifiedFreshBanana.png", "verifiedHot.png"},
                        {"7", 9.0, 75, 499, "certifiedFreshBanana.png", "popcornOnly.png"},
                        {"7", 8.99, 75, 80, "certifiedFreshBanana.png", "popcornOnly.png"},
                        {"7", 9.0, 75, 79, "bananaOnly.png", "popcornOnly.png"},
                        {"7", 6.0, 74, 900, "bananaOnly.png", "popcornOnly.png"},
                        {"7", 5.99, 60, 900, "bananaOnly.png", "rottenPopcorn.png"},
                        {"7", 5.99, 59, 900, "spoiledBanana.png", "rottenPopcorn.png"},
                        {"Oats", 7.0, 56, 900, "spoiledBanana.png", "popcornOnly.png"},  // 59.92 and 63.7
                        {"Zoo", 7.0, 100, 79, "bananaOnly.png", "popcornOnly.png"}};
  for (const Case& row : cases) {
    const BananaScores scores = bananaScores(filmOf(row.title, row.rating, row.metascore, row.ratings));
    EXPECT_EQ(scores.criticBadge, row.critics) << row.title << " " << row.metascore;
    EXPECT_EQ(scores.audienceBadge, row.audience) << row.title << " " << row.rating;
  }
  const BananaScores scores = bananaScores(filmOf("Paper", 9.5, 100, 5'000));
  EXPECT_EQ(wholePercent(scores.critic), 108);  // only the audience stops at a hundred
  EXPECT_EQ(wholePercent(scores.audience), 100);
  EXPECT_EQ(wholePercent(bananaScores(filmOf("Oats", 7, 56, 1)).critic), 59);
}

TEST(BananaScores, CountsOfReviewsStopAtTenThousand) {
  EXPECT_EQ(criticCount({}, filmOf("Zoo", 5, 50, 9)), "12 Reviews");
  EXPECT_EQ(audienceCount({}, filmOf("Zoo", 5, 50, 10'000)), "10,000 Reviews");
  EXPECT_EQ(audienceCount({}, filmOf("Zoo", 5, 50, 10'001)), "10,000+ Reviews");
}

struct Cards : test::RuleTest {
  Cards() {
    world.myName = "Ada Quinn";
    world.weekNumberForTracking = 12;
    world.weekNumber = 2;
    world.yearNumber = 2027;
  }
  Film film = filmOf("Zoo", 7, 50, 900);
};

TEST_F(Cards, TheConsensusFollowsTheWholePercent) {
  const std::pair<double, Bank> cases[] = {
      {0, Bank::criticConsensusBank0},   {19.9, Bank::criticConsensusBank0},
      {20, Bank::criticConsensusBank20}, {39, Bank::criticConsensusBank20},
      {40, Bank::criticConsensusBank40}, {59, Bank::criticConsensusBank40},
      {60, Bank::criticConsensusBank60}, {74.9, Bank::criticConsensusBank60},
      {75, Bank::criticConsensusBank75}, {89.9, Bank::criticConsensusBank75},
      {90, Bank::criticConsensusBank90}, {118, Bank::criticConsensusBank90}};
  for (const auto& [percent, bank] : cases) {
    game.told = {};
    random.range(14, 3);
    EXPECT_EQ(drawConsensus(game, film, percent), fill(rowsOf(bank)[3], {{"title", "Zoo"}})) << percent;
  }
}

TEST_F(Cards, CriticsSpeakByTheScoreOfAllCritics) {
  struct Case {
    double percent;
    Bank bank;
    std::int64_t rows;
    double lowest, highest;
  };
  const Case cases[] = {
      {0, Bank::longReviewBank1, 26, 1, 1},       {20.9, Bank::longReviewBank1, 26, 1, 1},
      {21, Bank::longReviewBank2, 29, 1, 1.6},    {60, Bank::longReviewBank3, 25, 1.64, 2.4},
      {80, Bank::longReviewBank4, 26, 2.44, 3.2}, {100.9, Bank::longReviewBank5, 30, 3.24, 4},
  };
  film.numMetascoreRatings = 2;
  film.isPrincipal = rolePart::principal;
  for (const Case& row : cases) {
    game.told = {};
    for (const std::int64_t woman : {0, 1}) {
      random.range(row.rows, 2).unit(static_cast<double>(woman)).range(2, woman);
      random.range(120, 5).range(254, 7).range(27, 3).range(woman == 1 ? 24 : 35, woman == 1 ? 0 : 34);
    }
    const std::vector<Review> drawn = drawCriticCards(game, film, row.percent);
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn[0].review, fill(rowsOf(row.bank)[2], {{"title", "Zoo"},
                                                          {"director", "Mina Falk"},
                                                          {"name", "Ada Quinn"},
                                                          {"genre", "sci-fi"},
                                                          {"prop", "letter"},
                                                          {"place", "hallway"}}));
    EXPECT_NEAR(drawn[0].stars, row.lowest, 1e-9) << row.percent;
    EXPECT_NEAR(drawn[1].stars, row.highest, 1e-9) << row.percent;
    EXPECT_EQ(drawn[0].image, "critic_m (35).png");
    EXPECT_EQ(drawn[1].image, "critic_f (1).png");
    EXPECT_EQ(drawn[0].name, rowsOf(Bank::maleFirstNames)[5] + " " + rowsOf(Bank::lastNameBank)[7]);
    EXPECT_EQ(drawn[1].name, rowsOf(Bank::femaleFirstNames)[5] + " " + rowsOf(Bank::lastNameBank)[7]);
    EXPECT_EQ(drawn[0].newsOutlet, rowsOf(Bank::reviewerCompanyBank)[3]);
    // Released two weeks ago, in the 52nd of the year before.
    EXPECT_EQ(drawn[0].date.month + " " + drawn[0].date.dayAndYear, "December 25, 2026");
  }
}

TEST_F(Cards, CriticsAreFiveAtTheMostAndSpeechlessAboveAHundredPercent) {
  film.numMetascoreRatings = 1;
  random.range(2, 0).any(4);
  const std::vector<Review> drawn = drawCriticCards(game, film, 101);
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn.front().review, "");
  EXPECT_EQ(drawn.front().stars, 1);

  film.numMetascoreRatings = 0;
  EXPECT_TRUE(drawCriticCards(game, film, 50).empty());
  film.numMetascoreRatings = 12;
  random.any(5 * 6 + 1 + 4 * 10);  // every face is the first one, and is drawn ten times
  EXPECT_EQ(drawCriticCards(game, film, 50).size(), 5U);
}

TEST_F(Cards, AFaceComesTwiceOnlyAfterTenDraws) {
  film.numMetascoreRatings = 3;
  const auto scriptCritic = [&] { random.any(2).range(2, 0).any(3); };
  scriptCritic();
  random.range(35, 4);
  scriptCritic();
  random.range(35, 4).range(35, 4).range(35, 9);
  scriptCritic();
  for (int draw = 0; draw < 10; ++draw) random.range(35, 9);
  std::vector<std::string> faces;
  for (const Review& card : drawCriticCards(game, film, 50)) faces.push_back(card.image);
  EXPECT_EQ(faces, (std::vector<std::string>{"critic_m (5).png", "critic_m (10).png", "critic_m (10).png"}));
}

TEST_F(Cards, TastesOfTheAudienceDifferByAStarAroundTheScore) {
  const std::pair<double, std::vector<std::size_t>> cases[] = {
      {0, {1, 1, 2}}, {39.9, {1, 2, 3}}, {50, {2, 3, 4}}, {80, {4, 5, 5}}, {100, {5, 5, 5}}};
  const Bank banks[] = {Bank::userReviewSnippet1, Bank::userReviewSnippet2, Bank::userReviewSnippet3,
                        Bank::userReviewSnippet4, Bank::userReviewSnippet5};
  film.numImbdRatings = 3;
  film.isPrincipal = rolePart::principal;
  for (const auto& [percent, stars] : cases) {
    game.told = {};
    for (const std::int64_t taste : {0, 1, 2}) {
      random.range(3, taste).range(49, 6).range(60, 0).range(80, 0).range(2, 1);
    }
    const std::vector<AudienceReview> drawn = drawAudienceCards(game, film, percent);
    ASSERT_EQ(drawn.size(), 3U);
    for (std::size_t card = 0; card < 3; ++card) {
      EXPECT_EQ(drawn[card].stars, stars[card]) << percent;
      // No two viewers write the same: the next row stands in.
      const auto written = static_cast<std::size_t>(
          std::count(stars.begin(), stars.begin() + static_cast<std::ptrdiff_t>(card), stars[card]));
      EXPECT_EQ(drawn[card].review,
                fill(rowsOf(banks[stars[card] - 1])[6 + written], {{"title", "Zoo"},
                                                                   {"director", "Mina Falk"},
                                                                   {"name", "Ada Quinn"},
                                                                   {"prop", "letter"},
                                                                   {"place", "hallway"}}));
      EXPECT_EQ(drawn[card].name, "sofacritic");
      EXPECT_EQ(drawn[card].date.dayAndYear, "1, 2027");  // the week after the release
    }
  }
}

}  // namespace
}  // namespace tb
