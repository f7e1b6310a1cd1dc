// Golden sheets of filming pay, residuals, Patron, energy, the balance and the net worth.

#include <format>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

#include "life/energy.h"
#include "platform/share_register.h"
#include "tests/sheet.h"
#include "wealth/filming_pay.h"
#include "wealth/market_index.h"
#include "wealth/net_worth.h"
#include "wealth/patron_pay.h"
#include "wealth/payment_history.h"
#include "wealth/weekly_balance.h"

namespace tb {
namespace {

using test::Sheet;

constexpr std::int64_t now = 60;

TEST(GoldenWealth, PayOfProjectsByTheirWeek) {
  Sheet sheet("wealth_pay");
  const auto pay = [&](const std::string& what, const Audition& project, std::int64_t isSAG, double dues) {
    sheet.changes(
        std::format("{} member {} dues paid {}", what, isSAG, dues),
        [&](WorldState& world) {
          world.yearNumber = 2027;
          world.weekNumberForTracking = now;
          world.isSAG = isSAG;
          world.workDuesPaidSAG = dues;
          world.saveAllAuditionList = {project};
        },
        [](Game& game) { payFilming(game); });
  };
  Audition project{.filmId = 9,
                   .typeOfFilm = filmType::commercial,
                   .title = "Fizz",
                   .weekToWork = now - 80,
                   .payment = 1000,
                   .buyout = 60,
                   .residual = 0.05,
                   .funnelStage = funnel::wrapped};
  for (std::int64_t weeks = 0; weeks <= 60; ++weeks) {
    project.weekReleased = now - weeks;
    pay(std::format("{} weeks on the air", weeks), project, 1, 750'000);
  }
  project.weekReleased = now - 4;
  for (const std::int64_t isSAG : {0, 1}) {
    for (const double dues : {0.0, 749'999.0, 750'000.0}) {
      project.weekToWork = now - 80;
      pay("a check", project, isSAG, dues);
      project.weekToWork = now - 1;
      pay("a session", project, isSAG, dues);
    }
  }
  for (const std::int64_t ahead : {0, -2}) {
    Audition other = project;
    other.typeOfFilm = filmType::feature;
    other.weekToWork = now + ahead;
    pay(std::format("wrapped in {} weeks", ahead), other, 1, 0);
  }
  project.isPrincipal = rolePart::ownProduction;
  pay("an own production", project, 1, 0);
  project.funnelStage = funnel::booked;
  pay("not wrapped", project, 1, 0);
  project.funnelStage = funnel::wrapped;
  project.weekToWork = now - 80;
  project.residual = 0;
  pay("without a residual", project, 1, 0);
}

TEST(GoldenWealth, PatronByFansReviewsAndTheirAge) {
  Sheet sheet("wealth_patron");
  std::vector<std::tuple<std::int64_t, int, int>> cases = {{1'000, 9, 0}};
  for (const std::int64_t fans : {399, 400, 6'000'000, 40'000'000}) {
    for (const int age : {0, 100, 199, 200}) cases.emplace_back(fans, 10, age);
  }
  for (const auto& [fans, reviews, age] : cases) {
    for (const std::size_t history : {0, 1, 104}) {
      sheet.changes(
          std::format("{} fans {} reviews {} weeks old, paid {} times", fans, reviews, age, history),
          [&](WorldState& world) {
            world.weekNumberForTracking = 300;
            world.totalFans = fans;
            world.saveFameLevel = 100;
            for (int review = 0; review < reviews; ++review) {
              world.saveAllMovieReviews.push_back({.weekNumberForTracking = 300 - age - review});
            }
            for (std::size_t week = 0; week < history; ++week) world.trackPatronEarnings.push_back(1);
          },
          [](Game& game) { payPatron(game); });
    }
  }
}

TEST(GoldenWealth, EnergyOfAgesAndWeeks) {
  Sheet sheet("life_energy");
  for (const std::int64_t age : {18, 39, 40, 41}) {
    for (const std::int64_t ceiling : {100, 27, 26, 25}) {
      sheet.changes(
          std::format("age {} ceiling {}", age, ceiling),
          [&](WorldState& world) {
            world.ageCount = age;
            world.totalEnergyMax = ceiling;
          },
          [](Game& game) { ageEnergyCeiling(game.world); });
    }
  }
  for (const std::int64_t left : {3, 130}) {
    for (const std::int64_t roles : {5, 6, 9}) {
      for (const std::int64_t children : {7, 500}) {
        sheet.changes(
            std::format("{} left, {} roles, children {}", left, roles, children),
            [&](WorldState& world) {
              world.totalEnergyAvailable = left;
              world.weeklyEnergyCost = 10;
              world.childEnergyCost = children;
              world.platformEnergyCost = 20;
              world.saveAllCompletedClasses = {{.energyCost = 15, .weeksRemaining = 1}, {.energyCost = 99}};
              world.weekNumberForTracking = 5;
              for (std::int64_t role = 0; role < roles; ++role) {
                world.saveAllAuditionList.push_back(
                    {.isPrincipal = 1, .weekAudition = 6, .funnelStage = 1 + role % 2});
              }
              // Lost roles do not count: an old audition, and one of the week that is ending.
              for (const std::int64_t week : {4, 5}) {
                world.saveAllAuditionList.push_back(
                    {.isPrincipal = 1, .weekAudition = week, .funnelStage = funnel::invited});
              }
              world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = funnel::wrapped});
              world.saveAllAuditionList.push_back({.isPrincipal = 0, .funnelStage = funnel::booked});
              world.saveAllAuditionList.push_back(
                  {.isPrincipal = 1, .funnelStage = funnel::booked, .didAct = 0});
            },
            [](Game& game) { refillEnergy(game); });
      }
    }
  }
  for (const double index : {0.31, 0.36, 0.505, 1.0, 1.48, 1.495}) {
    for (const std::uint64_t seed : {1, 2, 3}) {
      sheet.changes(
          std::format("markets at {} seed {}", index, seed),
          [&](WorldState& world) {
            world.realEstateIndex = index;
            world.cardIndex = index;
            for (int week = 0; week < (seed == 3 ? 48 : 2); ++week) world.trackCardIndex.push_back(week);
          },
          [](Game& game) {
            moveRealEstateIndex(game);
            moveCardIndex(game);
          },
          seed);
    }
  }
}

TEST(GoldenWealth, BalanceAddsEveryKindOfIncomeOnce) {
  Sheet sheet("wealth_balance");
  const auto balance = [&](const std::string& what, const Sheet::Prepare& prepare) {
    sheet.changes(
        what,
        [&](WorldState& world) {
          world.yearNumber = 2027;
          world.weekNumberForTracking = now;
          world.saveAllWeeklyLineItems = {{.amount = 50}, {.amount = 20}, {.amount = 7, .isExpense = false}};
          world.totalCashAvailable = 20;
          prepare(world);
        },
        [&](Game& game) {
          const WeekBalance totals = balanceWeek(game);
          sheet.line(std::format("income {}, expenses {}", totals.income, totals.expenses));
          for (const Analytics& tile : game.world.weekBalanceItems) {
            sheet.line(std::format("{} {}", tile.title, tile.moneyEarned));
          }
        });
  };
  balance("expenses without cash", [](WorldState& world) { world.platformSalary = 51; });
  balance("every income, among those of other weeks", [](WorldState& world) {
    for (const auto& [week, session, buyout, residual] : {std::tuple{now - 1, 5000, 5000, 5000},
                                                          {now, 1000, 200, 0},
                                                          {now, 0, 0, 30},
                                                          {now + 1, 5000, 5000, 5000}}) {
      world.saveAllWeeklyEarnings.push_back({.sessionEarned = static_cast<double>(session),
                                             .buyoutEarned = static_cast<double>(buyout),
                                             .residualsEarned = static_cast<double>(residual),
                                             .weekNumberForTracking = week});
    }
    world.saveAllEquityPayouts = {{.weekNumberForTracking = now - 1, .payOut = 5000},
                                  {.weekNumberForTracking = now, .payOut = 400}};
    world.saveAllRoyaltyPayouts = {{.weekNumberForTracking = now, .payout = 80},
                                   {.weekNumberForTracking = now + 1, .payout = 5000}};
    world.saveAllCameos = {{.weekNumberForTracking = now, .totalPriceEarned = 5},  // of the previous career
                           {.weekNumberForTracking = 900, .totalPriceEarned = 5000},
                           {.weekNumberForTracking = now, .totalPriceEarned = 20}};
    world.saveAllPropertyList = {{.weeklyRent = 300, .isPrimary = 1}, {.weeklyRent = 90, .rentEarned = 10}};
    world.platformSalary = 52 * 3 + 51;
    world.weeklyJobIncome = 410;
    world.weekNetIncome = 15;
    world.yearToDatePaycheck = 900;
  });
}

TEST(GoldenWealth, PaymentsNewestFirst) {
  WorldState world;
  world.saveAllFilmList = {{.filmId = 5, .title = "Salt Road"}};
  world.saveAllWeeklyEarnings = {
      {.filmTitle = "Fizz", .yearNumber = 2026, .weekNumberForTracking = 10},  // worked for nothing
      {.filmTitle = "Salt Road",
       .sessionEarned = 940,
       .buyoutEarned = 60,
       .yearNumber = 2026,
       .weekNumberForTracking = 53},
      {.filmTitle = "Fizz", .residualsEarned = 47, .yearNumber = 2028, .weekNumberForTracking = 107}};
  world.saveAllRoyaltyPayouts = {{.title = "Salt Road",
                                  .yearNumber = 2028,
                                  .weekNumberForTracking = 108,
                                  .payout = 200,
                                  .typeOfPayment = payoutSource::syndication}};
  world.saveAllEquityPayouts = {{.filmId = 5, .yearNumber = 2026, .weekNumberForTracking = 54, .payOut = -30},
                                {.filmId = 6, .yearNumber = 2028, .weekNumberForTracking = 107, .payOut = 1}};
  Sheet sheet("wealth_payments");
  for (const Payment& payment : paymentHistory(world)) {
    sheet.line(std::format("{} kind {} in week {} of {}: {} {}", payment.title,
                           static_cast<int>(payment.kind), payment.week, payment.year, payment.amount,
                           payment.source));
  }
}

TEST(GoldenWealth, NetWorthByItsParts) {
  Sheet sheet("wealth_net_worth");
  const auto worth = [&](const std::string& what, const Sheet::Prepare& prepare) {
    sheet.text(what, prepare, [](Game& game) {
      const NetWorth parts = netWorth(game.world);
      updateNetWorth(game);
      return std::format(
          "cash {:.2f} cards {:.2f} property {:.2f} vehicles {:.2f} ventures {:.2f} platform {:.2f} of {} "
          "shares: {:.2f}",
          parts.cash, parts.cards, parts.property, parts.vehicles, parts.ventures, parts.platform,
          totalPlatformShares(game.world), game.world.saveNetworth);
    });
  };
  worth("homes, cards and ventures", [](WorldState& world) {
    world.totalCashAvailable = -500;
    world.trackCardPortfolio = {10, 40};
    world.realEstateIndex = 1.2;
    world.saveAllPropertyList = {{.pricePaid = 1000, .realEstateIndex = 0.9},
                                 {.pricePaid = 2000, .realEstateIndex = 1.4}};
    world.saveSharkBoxDeals = {{.equity = 0.1,
                                .rounds = {{.valuation = 1000}, {.valuation = 3000}, {.valuation = 9000}},
                                .roundsResolved = 2},
                               {.equity = 0.5,
                                .rounds = {{.valuation = 1000}},
                                .roundsResolved = 1,
                                .status = ventureStatus::exited}};
  });
  for (const std::int64_t year : {2026, 2030, 2066, 2067}) {
    worth(std::format("a car in {}", year), [&](WorldState& world) {
      world.yearNumber = year;
      world.realEstateIndex = year == 2030 ? 1.2 : 1;
      world.saveAllTransportationOwnedList = {
          {.pricePaid = 30'000, .economyIndex = year == 2030 ? 0.8 : 1, .yearPurchased = 2026}};
    });
  }
  for (const auto& [launched, own, valuations] :
       {std::tuple{0, 600, 0}, {1, 600, 0}, {1, 600, 2}, {1, 0, 2}}) {
    worth(std::format("a platform, launched {}, {} own shares, {} valuations", launched, own, valuations),
          [&](WorldState& world) {
            world.isPlatformLaunched = launched;
            world.platformShares = own;
            world.platformCashAvailable = 1000;
            world.platformInfrastureValue = 500;
            if (valuations > 0) world.trackBusinessValuation = {70, 2000};
            if (own == 0) return;
            world.saveAllEmployeeList = {{.sharesOwned = 100, .yearEnded = 2027}, {.sharesOwned = -40}};
            world.saveAllFundraisingRounds = {{.sharesToIssue = 300, .investorName = {"Vane"}},
                                              {.sharesToIssue = 900}};
          });
  }
}

}  // namespace
}  // namespace tb
