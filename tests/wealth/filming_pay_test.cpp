#include "wealth/filming_pay.h"

#include <gtest/gtest.h>

#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t now = 60;

struct FilmingPay : test::RuleTest {
  FilmingPay() {
    world.yearNumber = 2027;
    world.weekNumberForTracking = now;
  }

  Audition& wrapped(Audition project) {
    project.funnelStage = funnel::wrapped;
    world.saveAllAuditionList.push_back(std::move(project));
    return world.saveAllAuditionList.edit(world.saveAllAuditionList.size() - 1);
  }

  // A commercial on the air for that many weeks.
  Audition& onAir(std::int64_t weeks) {
    return wrapped({.filmId = 9,
                    .typeOfFilm = filmType::commercial,
                    .title = "Fizz",
                    .weekToWork = now - weeks - 3,
                    .weekReleased = now - weeks,
                    .payment = 1000,
                    .residual = 0.05});
  }

  // What the one check that fell due came to; 0 when none did.
  double checkAfter(std::int64_t weeks) {
    world.saveAllAuditionList.clear();
    world.saveAllWeeklyEarnings.clear();
    onAir(weeks);
    payFilming(game);
    if (world.saveAllWeeklyEarnings.empty()) return 0;
    EXPECT_EQ(world.saveAllWeeklyEarnings.size(), 1U);
    return world.saveAllWeeklyEarnings.front().residualsEarned;
  }
};

TEST_F(FilmingPay, AMemberNetsNinetyFourPercentAndAStrangerAll) {
  wrapped({.filmId = 3, .title = "Salt Road", .weekToWork = now - 1, .payment = 1000, .buyout = 200});
  payFilming(game);
  EXPECT_EQ(test::shown(world.saveAllWeeklyEarnings),
            "(filmId 3, filmTitle Salt Road, sessionEarned 1000, buyoutEarned 200, yearNumber 2027, "
            "weekNumberForTracking 60)");
  EXPECT_EQ(world.workDuesPaidSAG, 0);
  world.isSAG = 1;
  payFilming(game);
  EXPECT_DOUBLE_EQ(world.saveAllWeeklyEarnings.back().sessionEarned, 940);
  EXPECT_EQ(world.saveAllWeeklyEarnings.back().buyoutEarned, 200);  // no dues on it
  EXPECT_DOUBLE_EQ(world.workDuesPaidSAG, 30);
}

TEST_F(FilmingPay, TheLastDuesCrossTheLifetimeSumAndThenTheyStop) {
  world.isSAG = 1;
  world.workDuesPaidSAG = 749'999;
  wrapped({.weekToWork = now - 1, .payment = 1000});
  wrapped({.weekToWork = now - 1, .payment = 500});
  payFilming(game);
  EXPECT_DOUBLE_EQ(world.saveAllWeeklyEarnings[0].sessionEarned, 940);
  EXPECT_DOUBLE_EQ(world.workDuesPaidSAG, 750'029);
  EXPECT_EQ(world.saveAllWeeklyEarnings[1].sessionEarned, 500);
  world.workDuesPaidSAG = 750'000;
  EXPECT_DOUBLE_EQ(checkAfter(4), 50);
  EXPECT_EQ(world.workDuesPaidSAG, 750'000);
}

TEST_F(FilmingPay, OnlyTheWeekAfterTheWrapPays) {
  wrapped({.weekToWork = now, .payment = 1});
  wrapped({.weekToWork = now - 2, .payment = 1});
  wrapped({.weekToWork = now - 1, .payment = 1}).funnelStage = funnel::booked;
  payFilming(game);
  EXPECT_TRUE(world.saveAllWeeklyEarnings.empty());
}

TEST_F(FilmingPay, AnOwnProductionTellsOfFeeAndBuyoutInTheRecordAlone) {
  world.isSAG = 1;
  wrapped({.isPrincipal = rolePart::ownProduction,
           .title = "Salt Road",
           .weekToWork = now - 1,
           .payment = 1000,
           .buyout = 60});
  random.range(25, 0);
  payFilming(game);
  expectToldInTheLogAlone("💵 The check cleared! Salt Road brought in a total of $1.0K");
}

TEST_F(FilmingPay, ACommercialPaysTwelveChecksEachTwoPointsLower) {
  world.workDuesPaidSAG = 750'000;
  int checks = 0;
  for (std::int64_t weeks = 0; weeks <= 60; ++weeks) {
    const bool due = weeks >= 4 && weeks <= 48 && weeks % 4 == 0;
    EXPECT_DOUBLE_EQ(checkAfter(weeks), due ? 50 * (1 - 0.02 * checks) : 0) << weeks;
    checks += due ? 1 : 0;
  }
}

TEST_F(FilmingPay, ResidualsOweDuesEvenForAStrangerAndComeFromCommercialsWithARateAlone) {
  EXPECT_DOUBLE_EQ(checkAfter(4), 47);
  EXPECT_DOUBLE_EQ(world.workDuesPaidSAG, 1.5);
  EXPECT_EQ(world.saveAllWeeklyEarnings.front().filmType, filmType::commercial);
  EXPECT_EQ(world.saveAllWeeklyEarnings.front().sessionEarned, 0);

  world.saveAllWeeklyEarnings.clear();
  world.saveAllAuditionList.clear();
  onAir(8).typeOfFilm = filmType::feature;
  onAir(8).residual = 0;
  onAir(8).weekToWork = now - 1;  // its session is paid instead
  payFilming(game);
  ASSERT_EQ(world.saveAllWeeklyEarnings.size(), 1U);
  EXPECT_EQ(world.saveAllWeeklyEarnings.front().residualsEarned, 0);
  EXPECT_EQ(world.saveAllWeeklyEarnings.front().sessionEarned, 1000);
}

}  // namespace
}  // namespace tb
