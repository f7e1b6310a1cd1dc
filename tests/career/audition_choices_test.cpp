#include <gtest/gtest.h>

#include "career/boosts.h"
#include "career/bribe.h"
#include "career/withdrawal.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct AuditionChoices : test::RuleTest {
  AuditionChoices() { world.weekNumberForTracking = 10; }

  Audition& add(Audition project) {
    world.saveAllAuditionList.push_back(std::move(project));
    return world.saveAllAuditionList.edit(world.saveAllAuditionList.size() - 1);
  }
};

TEST_F(AuditionChoices, RehearsalsGetDearerAndEndWithTheNinth) {
  Audition& project = add({.weekAudition = 10, .funnelStage = funnel::invited, .rehearsalRating = 20});
  const std::int64_t prices[] = {4, 6, 7, 9, 10, 12, 13, 15, 16};
  world.totalEnergyAvailable = 4 + 6 + 7 + 9 + 10 + 12 + 13 + 15 + 16;
  for (const std::int64_t price : prices) {
    ASSERT_TRUE(boostOf(world, project));
    EXPECT_EQ(boostOf(world, project)->energyPrice, price);
    EXPECT_FALSE(buyBoost(game, 0));
  }
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  EXPECT_EQ(project.rehearsalRating, 20 + 9 * 1.5);
  EXPECT_EQ(project.rehearsalBoostCount, 9);
  EXPECT_FALSE(boostOf(world, project));
  EXPECT_FALSE(buyBoost(game, 0));
  EXPECT_EQ(project.rehearsalBoostCount, 9);
}

TEST_F(AuditionChoices, RehearsalEndsAtAFullRatingAndAfterItsWeek) {
  Audition& project = add({.weekAudition = 10, .funnelStage = funnel::invited, .rehearsalRating = 99.9});
  EXPECT_TRUE(boostOf(world, project));
  project.rehearsalRating = 100;
  EXPECT_FALSE(boostOf(world, project));
  project.rehearsalRating = 5;
  world.weekNumberForTracking = 11;  // rejected: the week is past
  EXPECT_FALSE(boostOf(world, project));
}

TEST_F(AuditionChoices, ThePerformanceIsBuiltUpUntilTheWrap) {
  Audition& project = add({.weekToWork = 10, .funnelStage = funnel::booked, .performanceRating = 30});
  EXPECT_EQ(boostOf(world, project)->kind, BoostKind::performance);
  EXPECT_EQ(boostOf(world, project)->energyPrice, 17);
  world.totalEnergyAvailable = 16;
  EXPECT_EQ(buyBoost(game, 0)->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(project.performanceRating, 30);
  world.totalEnergyAvailable = 17;
  EXPECT_FALSE(buyBoost(game, 0));
  EXPECT_EQ(project.performanceRating, 31.5);
  EXPECT_EQ(project.rehearsalBoostCount, 0);
  EXPECT_EQ(boostOf(world, project)->energyPrice, 19);
  project.performanceBoostCount = 8;
  EXPECT_EQ(boostOf(world, project)->energyPrice, 31);
  project.performanceBoostCount = 9;
  EXPECT_FALSE(boostOf(world, project));
  project.performanceBoostCount = 0;
  world.weekNumberForTracking = 11;
  EXPECT_FALSE(boostOf(world, project));
}

TEST_F(AuditionChoices, PromotionIsForPrincipalsOfFilmsAndSeriesBeforeTheRelease) {
  Audition& project = add(
      {.typeOfFilm = filmType::series, .isPrincipal = 1, .weekReleased = 11, .funnelStage = funnel::wrapped});
  EXPECT_EQ(boostOf(world, project)->kind, BoostKind::promote);
  EXPECT_EQ(boostOf(world, project)->energyPrice, 25);
  EXPECT_FALSE(buyBoost(game, 0));
  EXPECT_EQ(world.selectedAuditionIndex, 0);
  EXPECT_EQ(world.totalEnergyAvailable, 75);
  EXPECT_EQ(project.promoteHypeCount, 0);  // counted when the interview is given
  const Audition promotable = project;
  const auto isBoosted = [&](auto change) {
    project = promotable;
    change(project);
    return boostOf(world, project).has_value();
  };
  EXPECT_TRUE(isBoosted([](Audition& a) { a.typeOfFilm = filmType::feature; }));
  EXPECT_FALSE(isBoosted([](Audition& a) { a.typeOfFilm = filmType::commercial; }));
  EXPECT_FALSE(isBoosted([](Audition& a) { a.promoteHypeCount = 1; }));
  EXPECT_FALSE(isBoosted([](Audition& a) { a.isPrincipal = rolePart::background; }));
  EXPECT_FALSE(isBoosted([](Audition& a) { a.isPrincipal = rolePart::ownProduction; }));
  EXPECT_FALSE(isBoosted([](Audition& a) { a.weekReleased = 10; }));
  for (const std::int64_t waiting : {funnel::submitted, funnel::closed}) {
    EXPECT_FALSE(isBoosted([=](Audition& a) { a = {.weekAudition = 20, .funnelStage = waiting}; }));
  }
}

TEST_F(AuditionChoices, TheBribeDoublesItsPriceAndSpeaksByItsStrength) {
  world.totalCashAvailable = 500 * 255;
  const std::pair<int, const char*> phrases[] = {
      {0, "a small boost"},        {10, "a small boost"},       {11, "in a meaningful way"},
      {40, "in a meaningful way"}, {41, "a strong contender"},  {60, "a strong contender"},
      {61, "basically locked in"}, {89, "basically locked in"},
  };
  std::int64_t price = 500;
  for (const auto& [roll, phrase] : phrases) {
    Audition& project = add({});
    EXPECT_TRUE(isBribeOffered(project));
    random.range(90, roll);
    const Notice notice = bribeCastingDirector(game, world.saveAllAuditionList.size() - 1);
    EXPECT_EQ(notice.title, "🤝 BRIBED 🤝");
    EXPECT_TRUE(notice.message.contains(phrase)) << roll << ": " << notice.message;
    EXPECT_EQ(project.didBribe, roll + 10);
    EXPECT_FALSE(isBribeOffered(project));
    price *= 2;
    EXPECT_EQ(world.saveBribePrice, price);
  }
  EXPECT_EQ(world.totalCashAvailable, 0);
  Audition& unlucky = add({});
  EXPECT_EQ(bribeCastingDirector(game, 8).title, "💰 Not Enough Cash 💰");
  EXPECT_EQ(unlucky.didBribe, 0);
  EXPECT_EQ(world.saveBribePrice, price);
  unlucky.funnelStage = funnel::invited;
  EXPECT_FALSE(isBribeOffered(unlucky));
}

TEST_F(AuditionChoices, WithdrawingCostsUpToAHundredthOfTheFansAtAnyStage) {
  world.totalFans = 1099;
  add({.filmId = 1});
  add({.filmId = 2, .title = "Saltwater", .funnelStage = funnel::booked});
  add({.filmId = 3, .funnelStage = funnel::wrapped});
  random.range(11, 10).range(50, 0);
  withdrawFromRole(game, 2);
  EXPECT_EQ(world.saveAllAuditionList.size(), 2u);
  EXPECT_EQ(world.totalFans, 1089);
  EXPECT_EQ(world.trackFans, (IntList{1089}));
  expectToldInTheLogAlone(
      "You withdrew from \"Saltwater\" after booking the role, and fans are not taking it well — 10 fans "
      "lost.");
  withdrawFromRole(game, 3);  // wrapped: too late
  withdrawFromRole(game, 2);  // gone
  EXPECT_EQ(world.saveAllAuditionList.size(), 2u);

  world.totalFans = 50;  // nobody to disappoint, and told all the same
  random.range(1, 0).any(1);
  withdrawFromRole(game, 1);
  EXPECT_EQ(world.trackFans, (IntList{1089, 50}));
}

}  // namespace
}  // namespace tb
