// Bids for reruns: who gets one, what a title is worth, and how long a network wants it.

#include "film/syndication_offers.h"

#include <gtest/gtest.h>

#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t now = 60;
constexpr std::int64_t justOutOfItsRun = now - 29;

// A film that cost a million, took three, has both scores at 80 % and is half talked about.
struct Bids : test::RuleTest {
  Bids() {
    world.weekNumberForTracking = now;
    world.saveAllFilmList.push_back({.filmId = 7,
                                     .typeOfFilm = filmType::feature,
                                     .title = "Salt Road",
                                     .weekReleased = justOutOfItsRun,
                                     .budget = 1e6,
                                     .imbdRating = 8,
                                     .imbdMetascore = 80,
                                     .currentPopularity = 50,
                                     .payment = 9'000,
                                     .residualRate = 0.02,
                                     .royaltyRate = 1.5,
                                     .sourceId = 4});
    addMarket(2e6);
    addMarket(1e6);
  }

  void addMarket(double gross) { world.saveAllBoxOfficeList.push_back({.filmId = 7, .totalGross = gross}); }
  Film& film() { return world.saveAllFilmList.edit(0); }
  const Syndication& record() { return world.saveAllSyndication[0]; }

  // A network that comes by in a week of no interest in anything else.
  test::ScriptedRandom& scriptComing(std::int64_t network) { return random.unit(0).range(7, network); }
};

TEST_F(Bids, TheFirstOneOpensARecordAtWhatTheTitleIsWorth) {
  scriptComing(1).range(2, 1);
  takeSyndicationBids(game);
  // Half of a profit of 200 % and 16 points of 20, on a quarter of the budget, at half the talk.
  EXPECT_EQ(test::shown(world.saveAllSyndication),
            "(filmId 7, filmName Salt Road, filmReleased 31, networkNames [HPO Max], networkOffers [225000], "
            "networkYears [2], networkImages [imbdHpoMax.png], weekOfFirstOffer 60, payment 9000, "
            "residualRate 0.02, royaltyRate 1.5, sourceId 4)");
}

TEST_F(Bids, AFilmThatLostMoneyIsWorthItsScoresAndASeriesTheAudienceThatItKept) {
  film().budget = 4e6;
  scriptComing(0).range(2, 0);
  takeSyndicationBids(game);
  EXPECT_EQ(record().networkOffers.front(), 400'000);
  world.saveAllSyndication.clear();
  film().budget = 1e6;
  film().typeOfFilm = filmType::series;
  world.saveAllRatings = {{.filmId = 8, .premiereViews = {1, 9}},
                          {.filmId = 7, .premiereViews = {400, 600, 200}}};
  scriptComing(0).range(2, 0);
  takeSyndicationBids(game);
  EXPECT_EQ(record().networkOffers.front(), 290'000);  // (0.5 + 16 / 200) of a million, at half the talk
  EXPECT_EQ(record().filmType, filmType::series);
}

TEST_F(Bids, WhatIsWorthNothingIsLeftAlone) {
  film().budget = 0;
  scriptComing(0).range(2, 0);
  takeSyndicationBids(game);
  film() = {.filmId = 9, .typeOfFilm = filmType::series, .budget = 1e6, .currentPopularity = 50};
  scriptComing(0).range(2, 0);  // a series that never had a premiere
  takeSyndicationBids(game);
  EXPECT_TRUE(world.saveAllSyndication.empty());
}

TEST_F(Bids, TheTermGoesByTheTalkAndIsAYearBetweenTheBands) {
  struct Term {
    double popularity;
    std::int64_t spread;  // of the draw; 0 for none
    std::int64_t longest;
  };
  const Term terms[] = {{10.5, 0, 1}, {25.5, 0, 1}, {26, 2, 2}, {50, 2, 2},  {50.5, 0, 1},
                        {51, 3, 3},   {65, 3, 3},   {66, 3, 4}, {80, 3, 4},  {81, 3, 5},
                        {95, 3, 5},   {95.5, 0, 1}, {96, 5, 7}, {300, 5, 7}, {300.5, 0, 1}};
  for (const Term& term : terms) {
    world.saveAllSyndication.clear();
    film().currentPopularity = term.popularity;
    scriptComing(0);
    if (term.spread > 0) random.range(term.spread, term.spread - 1);
    takeSyndicationBids(game);
    ASSERT_EQ(world.saveAllSyndication.size(), 1U) << term.popularity;
    EXPECT_EQ(record().networkYears.front(), term.longest) << term.popularity;
  }
}

TEST_F(Bids, NobodyBidsInTheFirst29WeeksForSmallWorkOrForWhatNobodyTalksAbout) {
  film().weekReleased = justOutOfItsRun + 1;
  takeSyndicationBids(game);
  film().weekReleased = justOutOfItsRun;
  for (const auto type : {filmType::commercial, filmType::studentFilm, filmType::shortFilm}) {
    film().typeOfFilm = type;
    takeSyndicationBids(game);
  }
  film().typeOfFilm = filmType::feature;
  film().currentPopularity = 10;
  random.unit(0);
  takeSyndicationBids(game);
  film().currentPopularity = 50;
  random.unit(0.5);  // an interest of 55
  takeSyndicationBids(game);
  EXPECT_TRUE(world.saveAllSyndication.empty());
}

TEST_F(Bids, FurtherNetworksHaggleAndEachBidsOnce) {
  scriptComing(1).range(2, 0);
  takeSyndicationBids(game);
  world.weekNumberForTracking = now + 1;
  scriptComing(6).range(2, 1).unit(0);
  takeSyndicationBids(game);
  scriptComing(1).range(2, 1).unit(1);  // has bid already
  takeSyndicationBids(game);
  EXPECT_EQ(record().networkNames, (std::vector<std::string>{"HPO Max", "Panamount"}));
  EXPECT_EQ(record().networkOffers, (std::vector<std::int64_t>{225'000, 168'750}));
  EXPECT_EQ(record().networkYears, (std::vector<std::int64_t>{1, 2}));
  EXPECT_EQ(record().weekOfFirstOffer, now);
  world.saveAllSyndication.edit(0).didAcceptOffer = true;  // while a deal is in force nobody bids
  random.unit(0);
  takeSyndicationBids(game);
  EXPECT_EQ(record().networkNames.size(), 2U);
}

TEST_F(Bids, ABidBeyondABillionIsDrawnInMillionsInstead) {
  film().budget = 4e9;  // worth 800 million by its scores
  addMarket(8e9);       // and more than as much again by its profit
  film().currentPopularity = 100;
  scriptComing(0).range(5, 0).range(701, 700);
  takeSyndicationBids(game);
  world.saveAllBoxOfficeList.pop_back();
  scriptComing(1).range(5, 0).unit(0);
  takeSyndicationBids(game);
  scriptComing(2).range(5, 0).unit(1);  // a billion itself is still a price
  takeSyndicationBids(game);
  film().currentPopularity = 101;
  scriptComing(3).range(5, 0).unit(1).range(701, 0);
  takeSyndicationBids(game);
  EXPECT_EQ(record().networkOffers,
            (std::vector<std::int64_t>{1'200'000'000, 600'000'000, 1'000'000'000, 500'000'000}));
}

}  // namespace
}  // namespace tb
