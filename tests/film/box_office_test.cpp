// The cinemas: which markets a film opens in, its seven weeks, its stakes, its close and its posts.

#include "film/box_office.h"

#include <cmath>
#include <gtest/gtest.h>

#include "film/markets.h"
#include "tests/film/wrapped_project.h"
#include "tests/record_text.h"

namespace tb {
namespace {

using test::ReleasedGame;
using test::releaseWeek;

// A film that cost so much.
struct Opening : ReleasedGame {
  explicit Opening(double budget = 1'000'000) : ReleasedGame(filmType::feature) { project().budget = budget; }

  // The draws are the base, then each market's noise, with the post right after the domestic one.
  static void script(test::ScriptedRandom& random, double base, double noise) {
    random.unit(base);
    for (const Market& market : markets) {
      random.unit(noise);
      if (market.countryId == domesticMarket) random.range(67, 1);
    }
  }
  const List<BoxOffice>& open(double base, double noise) {
    script(random, base, noise);
    openBoxOffice(game, project());
    return world.saveAllBoxOfficeList;
  }
  static constexpr double noNoise = 1.0 / 3;
};

// A film that opened with a thousand dollars at home and 500 in Japan.
struct RunningFilm : ReleasedGame {
  explicit RunningFilm(Audition project = test::projectOf(filmType::feature))
      : ReleasedGame(std::move(project)) {
    world.saveAllBoxOfficeList.push_back({.filmId = 6, .openingWeekend = 9, .totalGross = 9});
    for (const auto& [country, opening] : {std::pair{domesticMarket, 1'000.0}, {std::int64_t{2}, 500.0}}) {
      world.saveAllBoxOfficeList.push_back(
          {.filmId = 7, .countryId = country, .openingWeekend = opening, .totalGross = opening});
    }
    film().imbdRating = 5;
    film().imbdMetascore = 50;
    film().currentPopularity = 100;
  }
  const BoxOffice& home() { return world.saveAllBoxOfficeList[1]; }
};

TEST(Opening, EveryMarketThatIsWorthOneGetsItsShareOfTheBase) {
  Opening film;
  film.project().hypeRating = 100;
  const auto& records = film.open(1, Opening::noNoise);  // the base is three times 110,000
  // Above 5,000 of 330,000 are the shares above 0.01515: down to Norway's 0.016.
  ASSERT_EQ(records.size(), 24U);
  for (std::size_t index = 0; index < records.size(); ++index) {
    const BoxOffice expected{.filmId = 7,
                             .countryId = static_cast<std::int64_t>(index),
                             .countryName = std::string(markets[index].name),
                             .title = "Salt Road",
                             .year = 2030,
                             .weekNumberForTracking = releaseWeek,
                             .openingWeekend = records[index].openingWeekend,
                             .totalGross = records[index].openingWeekend,
                             .numOfTheatres = -1};
    EXPECT_EQ(records[index], expected);
    EXPECT_NEAR(records[index].openingWeekend, 330'000 * markets[index].share, 1e-6);
  }
}

TEST(Opening, AFilmThatCostNothingOpensAtHomeAloneAndABigOneWhereverItsShareIsNotDrawnAway) {
  Opening free(0);
  ASSERT_EQ(free.open(1, 1).size(), 1U);
  EXPECT_EQ(free.world.saveAllBoxOfficeList.front().totalGross, 0);
  Opening big(1e9);
  ASSERT_EQ(big.open(1, 0).size(), 18U);  // home and the shares above 0.02: down to Switzerland's 0.021
  EXPECT_EQ(big.world.saveAllBoxOfficeList.back().countryName, "Switzerland");
}

TEST(Opening, JojoPostsTheLastOpeningOfTheWeekOnce) {
  Opening film;
  for (const char* title : {"First", "Second"}) {
    film.project().title = title;
    film.open(1, Opening::noNoise);
  }
  film.random.unit(1).unit(1).unit(0).unit(1);
  postBoxOfficeChirp(film.game);
  postBoxOfficeChirp(film.game);
  ASSERT_EQ(film.world.saveAllChirpList.size(), 1U);
  const Chirp& post = film.world.saveAllChirpList.front();
  EXPECT_EQ(post.message, "Gerald the calculator has spoken. \"Second\": $110K in three days. ");
  EXPECT_EQ(post.id, 2);
  EXPECT_EQ(post.artistId, -1);
  EXPECT_EQ(post.chirpName, "Box Office Jojo");
  EXPECT_EQ(post.filmId, 7);
  EXPECT_EQ(post.likeCount, 20'000);
  EXPECT_EQ(post.commentCount, 2'000);
  EXPECT_EQ(post.reChirpCount, 10'000);
}

TEST(Opening, ComesWithTheReleaseAtTheHypeThatWasAndTheHypeFollowsTheScoresAfterwards) {
  ReleasedGame released(filmType::feature);
  released.project().hypeRating = 60;
  released.random.any(4).any(1).unit(1).range(31, 30).any(2);  // quality 50
  Opening::script(released.random, 1, Opening::noNoise);
  released.advance(0);
  EXPECT_NEAR(released.world.saveAllBoxOfficeList.front().openingWeekend, 110'000 * std::pow(3, 0.6), 1e-6);
  EXPECT_NEAR(released.project().hypeRating, 40, 1e-9);
}

TEST(Run, EachWeekTakesAShareOfItsOpeningThatFallsByATwentieth) {
  RunningFilm film;
  double gross = 1'000;
  for (std::int64_t week = 1; week <= 7; ++week) {
    film.advance(week);
    const double takings = 1'000 * (1 + static_cast<double>(7 - week) / 10) * 0.5;
    gross += takings;
    EXPECT_NEAR(film.home().boxOfficeWeeklyEarnings.back(), takings, 1e-9);
    EXPECT_EQ(film.home().weeksTracked.back(), releaseWeek + week);
    EXPECT_NEAR(film.home().totalGross, gross, 1e-9);
  }
  EXPECT_NEAR(*grossOf(film.world, 7), gross * 1.5, 1e-9);
  EXPECT_EQ(film.world.chirpId, 7);
  EXPECT_EQ(film.world.saveAllBoxOfficeList[0].totalGross, 9);  // another film
  film.advance(8);
  EXPECT_EQ(film.home().boxOfficeWeeklyEarnings.size(), 7U);
  EXPECT_TRUE(film.world.saveAllEquityPayouts.empty() && film.world.saveAllRoyaltyPayouts.empty());
}

TEST(Run, AFilmThatNobodyTalksAboutEndsOnNothing) {
  RunningFilm film;
  film.film().currentPopularity = 0;
  film.advance(7);
  EXPECT_EQ(film.home().boxOfficeWeeklyEarnings.back(), 0);
}

TEST(Run, TheLeadWinsFewerFansEachWeekAndNoneInTheLast) {
  Audition project = test::projectOf(filmType::feature);
  project.isPrincipal = rolePart::principal;
  for (const auto& [week, fans] : {std::pair{1, 189}, {6, 31}, {7, 0}}) {  // of 315 at full weight
    RunningFilm film(project);
    film.random.unit(1);
    film.advance(week);
    EXPECT_EQ(film.world.fanGainCarry, fans) << week;
  }
}

// With nobody talking, the film's gross in week 7 is what it was: 1,500.
struct Stakes : testing::Test {
  struct LastWeek : RunningFilm {
    explicit LastWeek(const Audition& project) : RunningFilm(project) { film().currentPopularity = 0; }
  };
  Audition project = test::projectOf(filmType::feature);
};

TEST_F(Stakes, AnInvestorHearsOfAProfitAndIsPaidEitherWay) {
  project.equityPercentage = 10;
  for (const double budget : {1'499.0, 1'500.0}) {
    project.budget = budget;
    LastWeek film(project);
    const bool profit = budget < 1'500;
    if (profit) film.random.range(30, 0);
    film.advance(7);
    EXPECT_EQ(test::shown(film.world.saveAllEquityPayouts),
              "(id 107, filmId 7, yearNumber 2030, weekNumberForTracking 28, payOut 150)");
    if (profit) {
      film.expectToldInBothLists("Payout received! \"Salt Road\" returned $150 on your stake.");
    } else {
      film.expectNothingTold();
    }
  }
}

TEST_F(Stakes, ADirectorAndProducerIsPaidInOtherWordsWithMarksOfTheirOwn) {
  project.equityPercentage = 40;
  project.isPrincipal = rolePart::ownProduction;
  LastWeek film(project);
  film.advance(7);
  EXPECT_EQ(test::shown(film.world.saveAllEquityPayouts),
            "(id 107, filmId 7, yearNumber 2030, weekNumberForTracking 28, payOut 600, sourceId 3, "
            "managerEarnings -1)");
  film.expectToldInBothLists(
      "You received $600 in box office earnings for directing and producing Salt Road");
}

TEST_F(Stakes, ARoyaltyIsToldInFullAndPaidLessTheSignedAgentsPart) {
  project.royalty = 2;
  for (const bool has_agent : {false, true}) {
    LastWeek film(project);
    film.world.saveAllTalentAgents = {{.id = 4, .commissionPercentage = 0.5},
                                      {.id = 5, .commissionPercentage = 0.1, .isSigned = has_agent ? 1 : 0}};
    film.random.range(20, 0);
    film.advance(7);
    EXPECT_EQ(test::shown(film.world.saveAllRoyaltyPayouts),
              std::string("(id 107, filmId 7, title Salt Road, yearNumber 2030, weekNumberForTracking 28, ") +
                  (has_agent ? "payout 27, sourceId 5, agentEarnings 3, " : "payout 30, ") +
                  "totalDealGross 1500)");
    EXPECT_EQ(film.world.saveAllTalentAgents[1].totalAgentEarnings, has_agent ? 3 : 0);
    film.expectToldInBothLists(
        "You received a box office royalty of $30.00 from the $1.5K that Salt Road took in.");
  }
}

TEST_F(Stakes, FallDueInTheLastWeekOnly) {
  project.royalty = 2;
  project.equityPercentage = 2;
  RunningFilm film(project);
  film.advance(6);
  EXPECT_TRUE(film.world.saveAllEquityPayouts.empty());
  EXPECT_TRUE(film.world.saveAllRoyaltyPayouts.empty());
}

TEST(Close, TheGrossOfAFilmThatOpenedIsAddedUpInTheEighthWeekAndOnce) {
  RunningFilm film;
  const auto closeInWeek = [&](std::int64_t week) {
    film.world.weekNumberForTracking = releaseWeek + week;
    closeBoxOffice(film.game);
    return film.film().boxOfficeGross;
  };
  EXPECT_EQ(closeInWeek(7), 0);
  film.random.range(50, 0);
  EXPECT_EQ(closeInWeek(8), 1'500);
  closeInWeek(9);
  film.expectToldInTheLogAlone(
      "Final numbers are in: \"Salt Road\" brought home $1.5K at the global box office.");
  film.film() = {.filmId = 7, .typeOfFilm = filmType::series, .weekReleased = releaseWeek};
  EXPECT_EQ(closeInWeek(30), 0);
  film.film().typeOfFilm = filmType::feature;
  film.world.saveAllBoxOfficeList.clear();
  EXPECT_EQ(closeInWeek(30), 0);
}

}  // namespace
}  // namespace tb
