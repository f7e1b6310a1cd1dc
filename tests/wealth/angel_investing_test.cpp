#include "wealth/angel_investing.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t mail = 77;

struct AngelInvesting : test::RuleTest {
  AngelInvesting() {
    world.weekNumber = 20;
    world.weekNumberForTracking = 500;
    world.yearNumber = 2035;
    world.filmId = 60;
    world.totalEnergyAvailable = 100;
    world.totalCashAvailable = 1e6;
    world.saveAllEmailList = {{.id = mail, .typeOfDeal = deal::investment}};
  }
  // The film of the e-mail, with a budget of a million and 10 percent on offer.
  void makeFilm() {
    world.investmentOpportunities = {{.emailId = mail,
                                      .project = {.typeOfFilm = filmType::feature,
                                                  .title = "Salt Road",
                                                  .isContinued = -1,
                                                  .weekSubmitted = 490,
                                                  .weekAudition = 493,
                                                  .weekToWork = 500,
                                                  .weekReleased = 510,
                                                  .budget = 1e6,
                                                  .didAct = 0,
                                                  .equityPercentage = 10}}};
  }
};

// The budget grows with fame up to 100, and its range 400 times.
TEST_F(AngelInvesting, TheFilmIsDrawnOnceAndByFame) {
  for (const auto& [fame, range] : {std::pair{std::int64_t{-5}, std::int64_t{500'000}},
                                    {0, 500'000},
                                    {50, 10'000'000},
                                    {100, 200'000'000},
                                    {140, 200'000'000}}) {
    test::ScratchGame fresh(test::Unscripted::low);
    fresh.world.saveFameLevel = fame;
    fresh.world.saveAllEmailList = world.saveAllEmailList;
    fresh.random.any(1).range(range, range - 1);
    makeOpportunity(fresh.game, mail);
    const Audition film = *opportunity(fresh.world, mail);
    EXPECT_NEAR(film.budget, static_cast<double>(500'000 + range - 1), 1) << fame;
    EXPECT_EQ(film.equityPercentage, 5);
    EXPECT_EQ(film.weekAudition, fresh.world.weekNumberForTracking + 2);
    EXPECT_EQ(film.isPrincipal, 0);
    EXPECT_EQ(film.didAct, 0);
    EXPECT_EQ(film.isContinued, -1);
    fresh.random.any(1);
    makeOpportunity(fresh.game, mail);
    EXPECT_EQ(*opportunity(fresh.world, mail), film);
    EXPECT_EQ(RandomRange(fresh.random, 5), 0);
    fresh.world.saveAllEmailList.clear();
    EXPECT_EQ(opportunity(fresh.world, mail), nullptr);
  }
}

TEST_F(AngelInvesting, EveryPercentAboveTheOfferCostsChance) {
  makeFilm();
  world.saveAllTalentAgents = {{.id = 1, .negotiationBonus = 7, .isSigned = 1}};
  InvestmentTalks talks = beginInvestmentTalks(world, mail);
  EXPECT_EQ(talks.negotiationBonus, 7);
  for (const auto& [percent, chance, cost] :
       {std::tuple{10, 100, 100'000.0}, {1, 100, 10'000.0}, {13, 70, 130'000.0}, {50, -300, 500'000.0}}) {
    changeEquity(talks, percent - talks.equityPercentage);
    EXPECT_EQ(talks.chanceOfNegotiation(), chance);
    EXPECT_EQ(talks.totalPayment(), cost);
  }
  changeEquity(talks, 1);
  EXPECT_EQ(talks.equityPercentage, maxEquity);
  changeEquity(talks, -99);
  EXPECT_EQ(talks.equityPercentage, minEquity);
}

TEST_F(AngelInvesting, LocksInTheFilmOnAScheduleFromToday) {
  makeFilm();
  random.range(100, 99).range(20, 0);  // a chance of 100 always passes
  const InvestmentAnswer answer = offerInvestment(game, beginInvestmentTalks(world, mail));
  EXPECT_TRUE(answer.isFinal);
  EXPECT_EQ(answer.notice.title, "💰🤝 Locked In 🤝💰");
  EXPECT_EQ(world.totalCashAvailable, 900'000);
  EXPECT_EQ(world.totalEnergyAvailable, 75);
  EXPECT_TRUE(world.saveAllEmailList.empty());
  const Audition& film = world.saveAllAuditionList.back();
  EXPECT_EQ(film.filmId, 61);
  EXPECT_EQ(film.weekSubmitted, 500);
  EXPECT_EQ(film.weekAudition, 503);
  EXPECT_EQ(film.weekToWork, 510);
  EXPECT_EQ(film.weekReleased, 520);
  EXPECT_EQ(film.equityPercentage, 10);
  EXPECT_EQ(film.equityDollarsInvested, 100'000);
  EXPECT_TRUE(isInvestment(film));
  expectToldInTheLogAlone("You invested $100K for a 10% stake in Salt Road");
}

TEST_F(AngelInvesting, RefusesInTheOrderOfEnergyLuckAndCash) {
  makeFilm();
  InvestmentTalks talks = beginInvestmentTalks(world, mail);
  changeEquity(talks, 10);  // no chance without a bonus
  world.totalEnergyAvailable = 24;
  EXPECT_EQ(offerInvestment(game, talks).notice.title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(world.totalEnergyAvailable, 24);

  world.totalEnergyAvailable = 60;
  world.totalCashAvailable = 10;
  random.range(100, 0).range(20, 0);
  const InvestmentAnswer declined = offerInvestment(game, talks);
  EXPECT_EQ(declined.notice.message, "\nThe team declined your investment at that percentage.");
  EXPECT_FALSE(declined.isFinal || declined.reply.empty());
  EXPECT_EQ(world.totalEnergyAvailable, 35);

  changeEquity(talks, -10);
  random.range(100, 99);
  EXPECT_EQ(offerInvestment(game, talks).notice.title, "💰 Not Enough Cash 💰");
  EXPECT_EQ(world.totalEnergyAvailable, 35);
  EXPECT_EQ(world.saveAllEmailList.size(), 1u);
  EXPECT_TRUE(world.saveAllAuditionList.empty());
}

TEST_F(AngelInvesting, ListsResultsWhenTheBoxOfficeIsOver) {
  const auto invest = [&](std::int64_t id, std::int64_t stage, std::int64_t released) {
    world.saveAllAuditionList.push_back({.filmId = id,
                                         .weekReleased = released,
                                         .funnelStage = stage,
                                         .didAct = 0,
                                         .equityPercentage = 12,
                                         .equityDollarsInvested = 1'000});
  };
  invest(1, funnel::wrapped, 492);
  invest(2, funnel::wrapped, 493);
  invest(3, funnel::closed, 400);
  world.saveAllAuditionList.push_back(
      {.filmId = 4, .isPrincipal = 2, .funnelStage = 3, .didAct = 0, .equityDollarsInvested = 5});
  world.saveAllFilmList = {{.filmId = 1, .imbdMetascore = 66}};
  world.saveAllEquityPayouts = {{.filmId = 1, .payOut = 300},
                                {.filmId = 1, .payOut = 50, .typeOfPayment = payoutSource::syndication}};
  const Investments investments = listInvestments(world);
  ASSERT_EQ(investments.rows.size(), 3u);
  EXPECT_EQ(investments.rows.back().rating, 66);
  EXPECT_EQ(investments.rows.back().subtitle, "12% stake");
  EXPECT_EQ(investments.invested, 3'000);
  EXPECT_EQ(investments.onTheMarket, 1);
  EXPECT_EQ(investments.gain, -650);
  EXPECT_EQ(returnsOf(world, 1).boxOffice, 300);
  EXPECT_EQ(returnsOf(world, 1).syndication, 50);
}

TEST_F(AngelInvesting, LearnsFromTitlesOfTheSameType) {
  world.saveAllFilmList = {{.filmId = 1, .budget = 100, .boxOfficeGross = 300},
                           {.filmId = 2, .budget = 200, .boxOfficeGross = 200},
                           {.filmId = 3, .budget = 100},  // still running
                           {.filmId = 4, .typeOfFilm = filmType::series, .budget = 100}};
  world.saveAllSyndication = {{.filmId = 4, .totalEarnings = 50}};
  EXPECT_EQ(pastTakings(world, filmType::feature).titles, 2);
  EXPECT_EQ(pastTakings(world, filmType::feature).perDollar, 2);
  EXPECT_EQ(pastTakings(world, filmType::series).perDollar, 0.5);
  EXPECT_EQ(pastTakings(world, filmType::commercial).perDollar, 0);
}

}  // namespace
}  // namespace tb
