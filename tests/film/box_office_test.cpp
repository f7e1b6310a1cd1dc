// The cinemas: which markets a film opens in, its seven weeks, its stakes, its close and its posts.

#include "film/box_office.h"

#include <gtest/gtest.h>
#include <numeric>

#include "banks/banks.h"
#include "core/number_style.h"
#include "film/markets.h"
#include "tests/film/wrapped_project.h"

namespace tb {
namespace {

using test::ReleasedGame;
using test::releaseWeek;

// A film that opened with a thousand dollars at home and 500 in Japan.
struct RunningFilm : ReleasedGame {
  explicit RunningFilm(Audition project = test::projectOf(filmType::feature))
      : ReleasedGame(std::move(project)) {
    world().saveAllBoxOfficeList.push_back({.filmId = 6, .openingWeekend = 9, .totalGross = 9});
    addMarket(domesticMarket, 1'000);
    addMarket(2, 500);
    film().imbdRating = 5;
    film().imbdMetascore = 50;
    film().currentPopularity = 100;
  }
  void addMarket(std::int64_t country, double opening) {
    world().saveAllBoxOfficeList.push_back(
        {.filmId = 7, .countryId = country, .openingWeekend = opening, .totalGross = opening});
  }
  const BoxOffice& home() { return world().saveAllBoxOfficeList[1]; }
};

// The draws of an opening: the base, then each market's noise, with the post right after the domestic one.
void scriptOpening(test::ScriptedRandom& random, double base, double noise) {
  random.unit(base);
  for (const Market& market : markets) {
    random.unit(noise);
    if (market.countryId == domesticMarket) random.range(67, 1);
  }
}

TEST(Opening, EveryMarketThatIsWorthOneGetsItsShareOfTheBase) {
  ReleasedGame released(test::projectOf(filmType::feature));
  released.project().hypeRating = 100;
  scriptOpening(released.random, 1, 1.0 / 3);  // no noise: the base is three times 110,000
  openBoxOffice(released.game, released.project());
  ASSERT_EQ(released.random.left(), 0U);
  const auto& records = released.world().saveAllBoxOfficeList;
  // Above 5,000 of 330,000 are the shares above 0.01515: down to Norway's 0.016.
  ASSERT_EQ(records.size(), 24U);
  for (std::size_t index = 0; index < records.size(); ++index) {
    EXPECT_EQ(records[index].countryId, markets[index].countryId);
    EXPECT_EQ(records[index].countryName, markets[index].name);
    EXPECT_NEAR(records[index].openingWeekend, 330'000 * markets[index].share, 1e-6);
    EXPECT_EQ(records[index].totalGross, records[index].openingWeekend);
    EXPECT_EQ(records[index].title, "Salt Road");
    EXPECT_EQ(records[index].year, 2030);
    EXPECT_EQ(records[index].weekNumberForTracking, releaseWeek);
    EXPECT_EQ(records[index].numOfTheatres, -1);
  }
}

TEST(Opening, TheWorldIsWorthAboutAsMuchAgainAsHomeAndHasIndonesiaTwice) {
  const double abroad = std::accumulate(markets.begin() + 1, markets.end(), 0.0,
                                        [](double sum, const Market& market) { return sum + market.share; });
  EXPECT_NEAR(abroad, 1.163, 1e-9);
  EXPECT_EQ(std::ranges::count(markets, std::string_view("Indonesia"), &Market::name), 2);
  for (std::size_t index = 0; index < markets.size(); ++index) {
    EXPECT_EQ(markets[index].countryId, static_cast<std::int64_t>(index));
  }
}

TEST(Opening, AFilmThatCostNothingOpensAtHomeAloneWithNothing) {
  ReleasedGame released(test::projectOf(filmType::feature));
  released.project().budget = 0;
  scriptOpening(released.random, 1, 1);
  openBoxOffice(released.game, released.project());
  ASSERT_EQ(released.world().saveAllBoxOfficeList.size(), 1U);
  EXPECT_EQ(released.world().saveAllBoxOfficeList.front().totalGross, 0);
}

TEST(Opening, AMarketWhoseShareIsDrawnAwayIsSkippedHoweverBigTheFilm) {
  ReleasedGame released(test::projectOf(filmType::feature));
  released.project().budget = 1e9;
  scriptOpening(released.random, 1, 0);
  openBoxOffice(released.game, released.project());
  const auto& records = released.world().saveAllBoxOfficeList;
  // Home and the shares above 0.02: down to Switzerland's 0.021.
  ASSERT_EQ(records.size(), 18U);
  EXPECT_EQ(records.back().countryName, "Switzerland");
}

TEST(Opening, JojoPostsTheLastOpeningOfTheWeekOnce) {
  ReleasedGame released(test::projectOf(filmType::feature));
  for (const std::string& title : {std::string("First"), std::string("Second")}) {
    released.project().title = title;
    scriptOpening(released.random, 1, 1.0 / 3);
    openBoxOffice(released.game, released.project());
  }
  EXPECT_EQ(released.world().chirpId, 2);
  released.random.unit(1).unit(1).unit(0).unit(1);
  postBoxOfficeChirp(released.game);
  postBoxOfficeChirp(released.game);
  ASSERT_EQ(released.world().saveAllChirpList.size(), 1U);
  const Chirp& post = released.world().saveAllChirpList.front();
  EXPECT_EQ(post.message, "Opening weekend numbers are in — \"Second\" debuts with $110K ");
  EXPECT_EQ(post.id, 2);
  EXPECT_EQ(post.artistId, -1);
  EXPECT_EQ(post.chirpName, "Box Office Jojo");
  EXPECT_EQ(post.imageString, "boxOfficeJojo.png");
  EXPECT_EQ(post.filmId, 7);
  EXPECT_EQ(post.likeCount, 20'000);
  EXPECT_EQ(post.commentCount, 2'000);
  EXPECT_EQ(post.reChirpCount, 10'000);
  EXPECT_GT(post.timestamp.seconds, 0);
}

TEST(Opening, ComesWithTheReleaseAtTheHypeThatWasAndTheHypeFollowsTheScoresAfterwards) {
  ReleasedGame released(test::projectOf(filmType::feature));
  released.project().hypeRating = 60;
  released.random.any(4).any(1).unit(1).range(31, 30).any(2);  // quality 50
  scriptOpening(released.random, 1, 1.0 / 3);
  released.advance(0);
  EXPECT_NEAR(released.world().saveAllBoxOfficeList.front().openingWeekend, 110'000 * std::pow(3, 0.6), 1e-6);
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
  EXPECT_NEAR(*grossOf(film.world(), 7), gross * 1.5, 1e-9);
  EXPECT_EQ(film.world().chirpId, 7);
  EXPECT_EQ(film.world().saveAllBoxOfficeList[0].totalGross, 9);  // another film
  film.advance(8);
  EXPECT_EQ(film.home().boxOfficeWeeklyEarnings.size(), 7U);
  EXPECT_TRUE(film.world().saveAllEquityPayouts.empty());
  EXPECT_TRUE(film.world().saveAllRoyaltyPayouts.empty());
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
    EXPECT_EQ(film.world().fanGainCarry, fans) << week;
  }
}

// In week 7 with nobody talking, the film's gross is what it was: 1,500.
struct LastWeek : RunningFilm {
  explicit LastWeek(const Audition& project) : RunningFilm(project) { film().currentPopularity = 0; }
};

TEST(Stakes, AnInvestorHearsOfAProfitAndIsPaidEitherWay) {
  for (const double budget : {1'499.0, 1'500.0}) {
    Audition project = test::projectOf(filmType::feature);
    project.equityPercentage = 10;
    project.budget = budget;
    LastWeek film(project);
    const bool profit = budget < 1'500;
    if (profit) film.random.range(30, 0);
    film.advance(7);
    const EquityPayout expected{
        .id = 107, .filmId = 7, .yearNumber = 2030, .weekNumberForTracking = releaseWeek + 8, .payOut = 150};
    ASSERT_EQ(film.world().saveAllEquityPayouts.size(), 1U);
    EXPECT_EQ(film.world().saveAllEquityPayouts.front(), expected);
    EXPECT_EQ(film.world().WeekFeed.size(), profit ? 1U : 0U);
    EXPECT_EQ(film.world().activityTracker.size(), profit ? 1U : 0U);
    if (profit) {
      EXPECT_EQ(film.world().WeekFeed.front(), "Payout received! \"Salt Road\" returned $150 on your stake.");
    }
  }
}

TEST(Stakes, ADirectorAndProducerIsPaidInOtherWordsWithMarksOfTheirOwn) {
  Audition project = test::projectOf(filmType::feature);
  project.equityPercentage = 40;
  project.isPrincipal = rolePart::ownProduction;
  LastWeek film(project);
  film.advance(7);
  ASSERT_EQ(film.world().saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(film.world().saveAllEquityPayouts.front().payOut, 600);
  EXPECT_EQ(film.world().saveAllEquityPayouts.front().sourceId, 3);
  EXPECT_EQ(film.world().saveAllEquityPayouts.front().managerEarnings, -1);
  const std::string line = "You received $600 in box office earnings for directing and producing Salt Road";
  EXPECT_EQ(film.world().activityTracker.front(), line);
  EXPECT_EQ(film.world().WeekFeed.front(), line);
}

TEST(Stakes, ARoyaltyIsToldInFullAndPaidLessTheSignedAgentsPart) {
  Audition project = test::projectOf(filmType::feature);
  project.royalty = 2;
  for (const bool has_agent : {false, true}) {
    LastWeek film(project);
    film.world().saveAllTalentAgents.push_back({.id = 4, .commissionPercentage = 0.5});
    film.world().saveAllTalentAgents.push_back(
        {.id = 5, .commissionPercentage = 0.1, .isSigned = has_agent ? 1 : 0});
    film.random.range(20, 0);
    film.advance(7);
    const RoyaltyPayout expected{.id = 107,
                                 .filmId = 7,
                                 .title = "Salt Road",
                                 .yearNumber = 2030,
                                 .weekNumberForTracking = releaseWeek + 8,
                                 .payout = has_agent ? 27.0 : 30.0,
                                 .sourceId = has_agent ? 5 : 0,
                                 .agentEarnings = has_agent ? 3.0 : 0.0,
                                 .totalDealGross = 1'500};
    ASSERT_EQ(film.world().saveAllRoyaltyPayouts.size(), 1U);
    EXPECT_EQ(film.world().saveAllRoyaltyPayouts.front(), expected);
    EXPECT_EQ(film.world().saveAllTalentAgents[1].totalAgentEarnings, has_agent ? 3 : 0);
    const std::string line =
        "You received a box office royalty of $30.00 from the $1.5K that Salt Road took in.";
    EXPECT_EQ(film.world().activityTracker.front(), line);
    EXPECT_EQ(film.world().WeekFeed.front(), line);
  }
}

TEST(Stakes, FallDueInTheLastWeekOnly) {
  Audition project = test::projectOf(filmType::feature);
  project.royalty = 2;
  project.equityPercentage = 2;
  LastWeek film(project);
  film.advance(6);
  EXPECT_TRUE(film.world().saveAllEquityPayouts.empty());
  EXPECT_TRUE(film.world().saveAllRoyaltyPayouts.empty());
}

TEST(Close, TheGrossIsAddedUpInTheEighthWeekAndOnce) {
  RunningFilm film;
  film.world().weekNumberForTracking = releaseWeek + 7;
  closeBoxOffice(film.game);
  EXPECT_EQ(film.film().boxOfficeGross, 0);
  film.world().weekNumberForTracking = releaseWeek + 8;
  film.random.range(50, 0);
  closeBoxOffice(film.game);
  EXPECT_EQ(film.film().boxOfficeGross, 1'500);
  EXPECT_EQ(film.world().activityTracker.front(),
            "Final numbers are in: \"Salt Road\" brought home $1.5K at the global box office.");
  EXPECT_TRUE(film.world().WeekFeed.empty());
  film.world().weekNumberForTracking = releaseWeek + 9;
  closeBoxOffice(film.game);
  EXPECT_EQ(film.world().activityTracker.size(), 1U);
}

TEST(Close, AFilmThatOpenedNowhereAndASeriesStayWithoutAGross) {
  RunningFilm film;
  film.world().saveAllBoxOfficeList.clear();
  film.world().weekNumberForTracking = releaseWeek + 30;
  closeBoxOffice(film.game);
  EXPECT_EQ(film.film().boxOfficeGross, 0);

  RunningFilm series(test::projectOf(filmType::series));
  series.world().weekNumberForTracking = releaseWeek + 30;
  closeBoxOffice(series.game);
  EXPECT_EQ(series.film().boxOfficeGross, 0);
}

}  // namespace
}  // namespace tb
