// A film, a commercial and a production of one's own, from the wrap through a year on the books, with every
// draw at its low end: every figure below was worked out by hand.

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
constexpr double bills = 50;            // a week, Basic Needs
constexpr double afterBothDues = 0.94;  // 3 % off, twice

struct YearOfAFilm : testing::Test {
  test::ScriptedRandom chance{test::Unscripted::low};
  test::Device device{chance};
  double cash = 0;  // as the books of the test have it

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

  // Ends a week whose records come to `earned`, in dollars.
  void endWeek(double earned = 0) {
    device.liveWeeks();
    cash += earned - bills;
    EXPECT_NEAR(device.world().totalCashAvailable, cash, 0.005)
        << "week " << device.world().weekNumberForTracking;
  }
};

// The check of a commercial after so many weeks on the air.
double check(int weeks) { return (0.05 - 0.05 * (weeks / 4 - 1) * 0.02) * 1'000 * afterBothDues; }

// The opening and the seven weeks of the run, in openings, of a film that is forgotten by a tenth of a point
// a week.
double takingsOfRun(double popularity) {
  double takings = 1;
  for (int week = 1; week <= 7; ++week) {
    takings += 0.5 * (std::pow(2, (popularity - 0.1 * week) / 100) - 1 + (7 - week) / 10.0);
  }
  return takings;
}

TEST_F(YearOfAFilm, IsPaidForInItsWeeksAndFadesAtItsPace) {
  endWeek(fees * afterBothDues + buyout);
  const WorldState& world = device.world();
  EXPECT_NEAR(world.workDuesPaidSAG, fees * 0.03, 1e-9);
  EXPECT_NEAR(world.saveWeeklyEarnings[0], cash + bills, 1e-9);

  // Director 80: at worst 3 stars and a metascore of 40, 35 of 100 together. Hype 50 shrinks to that many
  // 75ths.
  endWeek();
  endWeek();
  const double released = 50 * 35.0 / 75;
  EXPECT_EQ(device.film(film).imbdRating, 3);
  EXPECT_EQ(device.film(film).imbdMetascore, 40);
  EXPECT_EQ(device.film(film).numImbdRatings, 1000);
  EXPECT_NEAR(device.film(film).lastWeekPopularity, released, 1e-9);
  EXPECT_NEAR(device.film(film).currentPopularity, released - 0.1, 1e-9);
  EXPECT_EQ(device.film(commercial).currentPopularity, released);  // which nobody talks about, or forgets

  for (int week = 2; week <= 7; ++week) endWeek(week == 4 ? check(4) : 0);
  EXPECT_EQ(world.saveWeeklyEarnings[5], 0);  // a check is cash, and no part of the week's net
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
