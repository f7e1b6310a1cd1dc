#include "wealth/angel_investing.h"

#include <format>
#include <gtest/gtest.h>

#include "tests/record_text.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using test::Sheet;

constexpr std::int64_t mail = 77;

void prepareMail(WorldState& world) {
  world.weekNumber = 20;
  world.weekNumberForTracking = 500;
  world.yearNumber = 2035;
  world.filmId = 60;
  world.totalEnergyAvailable = 100;
  world.totalCashAvailable = 1e6;
  world.saveAllEmailList = {{.id = mail, .typeOfDeal = deal::investment}};
}

// The e-mail offers 10 percent of a film of a million.
void prepareFilm(WorldState& world) {
  prepareMail(world);
  world.investmentOpportunities = {{.emailId = mail,
                                    .project = {.title = "Salt Road",
                                                .isContinued = -1,
                                                .weekSubmitted = 490,
                                                .weekAudition = 493,
                                                .weekToWork = 500,
                                                .weekReleased = 510,
                                                .budget = 1e6,
                                                .didAct = 0,
                                                .equityPercentage = 10}}};
}

// The budget grows with fame up to 100.
TEST(GoldenInvesting, FilmsAreDrawnOnceAndByFame) {
  Sheet sheet("wealth_opportunities");
  for (const std::int64_t fame : {-5, 0, 50, 100, 140}) {
    for (const std::uint64_t seed : {1, 2, 3}) {
      sheet.text(
          std::format("fame {} seed {}", fame, seed),
          [&](WorldState& world) {
            prepareMail(world);
            world.saveFameLevel = fame;
          },
          [](Game& game) {
            makeOpportunity(game, mail);
            const Audition film = *opportunity(game.world, mail);
            makeOpportunity(game, mail);
            EXPECT_EQ(*opportunity(game.world, mail), film);
            game.world.saveAllEmailList.clear();
            EXPECT_EQ(opportunity(game.world, mail), nullptr);
            return test::shown(film);
          },
          seed);
    }
  }
}

TEST(GoldenInvesting, OffersByShareEnergyAndCash) {
  Sheet sheet("wealth_investing");
  for (const auto& [energy, cash] : {std::pair{100, 1e6}, {24, 1e6}, {25, 10.0}}) {
    for (const std::int64_t step : {-99, -9, 0, 3, 10, 40, 99}) {
      for (const std::uint64_t seed : {1, 2}) {
        sheet.changes(
            std::format("energy {} cash {} step {} seed {}", energy, cash, step, seed),
            [&](WorldState& world) {
              prepareFilm(world);
              world.totalEnergyAvailable = energy;
              world.totalCashAvailable = cash;
              world.saveAllTalentAgents = {{.id = 1, .negotiationBonus = 7, .isSigned = 1}};
            },
            [&](Game& game) {
              InvestmentTalks talks = beginInvestmentTalks(game.world, mail);
              changeEquity(talks, step);
              sheet.line(std::format("{}% for {} at {} + {}", talks.equityPercentage, talks.totalPayment(),
                                     talks.chanceOfNegotiation(), talks.negotiationBonus));
              const InvestmentAnswer answer = offerInvestment(game, talks);
              sheet.line(answer.notice.title + answer.notice.message + answer.reply +
                         (answer.isFinal ? " final" : ""));
            },
            seed);
      }
    }
  }
}

TEST(AngelInvesting, ListsResultsWhenTheBoxOfficeIsOver) {
  WorldState world;
  prepareMail(world);
  for (const auto& [id, stage, released] :
       {std::tuple{1, funnel::wrapped, 492}, {2, funnel::wrapped, 493}, {3, funnel::closed, 400}}) {
    world.saveAllAuditionList.push_back({.filmId = id,
                                         .weekReleased = released,
                                         .funnelStage = stage,
                                         .didAct = 0,
                                         .equityPercentage = 12,
                                         .equityDollarsInvested = 1'000});
  }
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

TEST(AngelInvesting, LearnsFromTitlesOfTheSameType) {
  WorldState world;
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
