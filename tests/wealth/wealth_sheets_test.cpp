// Golden sheets of filming pay, residuals, Patron and energy.

#include <format>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

#include "life/energy.h"
#include "tests/sheet.h"
#include "wealth/filming_pay.h"
#include "wealth/market_index.h"
#include "wealth/patron_pay.h"

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

}  // namespace
}  // namespace tb
