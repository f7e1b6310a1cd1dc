// A film, a commercial and an own production, from the wrap through a year, with every draw at its low end.
// The expected figures were computed by hand.

#include <cmath>
#include <gtest/gtest.h>

#include "tests/journeys/device.h"

namespace tb {
namespace {

constexpr std::int64_t film = 1;
constexpr std::int64_t commercial = 2;
constexpr std::int64_t own = 3;
constexpr std::int64_t release = 3;
constexpr double fees = 9'000 + 1'000 + 2'000;
constexpr double buyout = 250;
constexpr double commission = 0.1;
constexpr double bills = 50;            // Basic Needs per week
constexpr double afterBothDues = 0.94;  // minus 3 % twice

struct YearOfAFilmJourney : testing::Test {
  test::ScriptedRandom chance{test::Unscripted::low};
  test::Device device{chance};
  double cash = 0;  // expected

  void SetUp() override {
    device.begin([](WorldState& world) {
      world.isSAG = 1;
      world.saveAllTalentAgents = {{.id = 5, .commissionPercentage = commission, .isSigned = 1}};
      Audition lead = test::bookedLead(film, filmType::feature, "Salt Road");
      Audition spot = test::bookedLead(commercial, filmType::commercial, "Fizz");
      spot.royalty = 0;
      spot.payment = 1'000;
      spot.buyout = buyout;
      spot.residual = 0.05;
      for (Audition project : {lead, spot, test::ownProduction(own, "Own Goal")}) {
        project.budget = 100'000;
        world.saveAllAuditionList.push_back(std::move(project));
      }
    });
  }

  // Ends a week with records of `earned` dollars in total.
  void endWeek(double earned = 0) {
    device.playWeeks();
    cash += earned - bills;
    EXPECT_NEAR(device.world().totalCashAvailable, cash, 0.005)
        << "week " << device.world().weekNumberForTracking;
  }
};

// A commercial's residual after that many weeks on the air.
double check(int weeks) { return (0.05 - 0.05 * (weeks / 4 - 1) * 0.02) * 1'000 * afterBothDues; }

// The gross of a run in multiples of the opening, when the popularity falls by 0.1 per week.
double takingsOfRun(double popularity) {
  double takings = 1;
  for (int week = 1; week <= 7; ++week) {
    takings += 0.5 * (std::pow(2, (popularity - 0.1 * week) / 100) - 1 + (7 - week) / 10.0);
  }
  return takings;
}

TEST_F(YearOfAFilmJourney, PaysAndDriftsAsComputedByHand) {
  endWeek(fees * afterBothDues + buyout);
  const WorldState& world = device.world();
  EXPECT_NEAR(world.workDuesPaidSAG, fees * 0.03, 1e-9);
  EXPECT_NEAR(world.saveWeeklyEarnings[0], cash + bills, 1e-9);

  // Director 80: at least rating 3 and metascore 40, a quality of 35. A hype of 50 becomes 50 · 35 / 75.
  endWeek();
  endWeek();
  const double released = 50 * 35.0 / 75;
  EXPECT_EQ(device.film(film).imbdRating, 3);
  EXPECT_EQ(device.film(film).imbdMetascore, 40);
  EXPECT_EQ(device.film(film).numImbdRatings, 1000);
  EXPECT_NEAR(device.film(film).lastWeekPopularity, released, 1e-9);
  EXPECT_NEAR(device.film(film).currentPopularity, released - 0.1, 1e-9);
  EXPECT_EQ(device.film(commercial).currentPopularity, released);  // commercials do not drift

  for (int week = 2; week <= 7; ++week) endWeek(week == 4 ? check(4) : 0);
  EXPECT_EQ(world.saveWeeklyEarnings[5], 0);  // residuals are not part of the week's net
  EXPECT_TRUE(world.saveAllRoyaltyPayouts.empty());

  const double gross = std::pow(3, 0.5) * 100'000 * 0.03 * 0.98 * takingsOfRun(released);
  endWeek(check(8) + gross * 0.02 * (1 - commission) + gross * 0.1);
  ASSERT_EQ(world.saveAllRoyaltyPayouts.size(), 1U);
  EXPECT_EQ(world.saveAllRoyaltyPayouts[0].weekNumberForTracking, release + 8);
  EXPECT_NEAR(world.saveAllRoyaltyPayouts[0].agentEarnings, gross * 0.02 * commission, 1e-6);
  ASSERT_EQ(world.saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(world.saveAllEquityPayouts[0].filmId, own);
  EXPECT_EQ(world.saveAllEquityPayouts[0].weekNumberForTracking, release + 8);

  for (int week = 9; week <= 53; ++week) endWeek(week % 4 == 0 && week <= 48 ? check(week) : 0);
  EXPECT_NEAR(device.film(film).currentPopularity, released - 0.1 * 53, 1e-9);
}

}  // namespace
}  // namespace tb
