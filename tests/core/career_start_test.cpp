#include "core/career_start.h"

#include <gtest/gtest.h>

#include "core/load_world.h"
#include "core/save.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using test::ScratchGame;

const WeeklyLineItem basicNeeds{.category = 0,
                                .title = "Basic Needs",
                                .amount = 50.0,
                                .year = 2026,
                                .isExpense = true,
                                .typeOfExpense = -1,
                                .energyBoost = 0};

// What the next launch finds.
WorldState relaunched(ScratchGame& scratch) {
  Game game{.store = scratch.store, .random = scratch.random};
  loadWorld(game);
  return game.world;
}

TEST(NewCareer, A_performer_without_a_name_is_sent_back_to_the_form) {
  ScratchGame scratch;
  const Refusal refusal = confirmNewCareer(scratch.game, {.aboutDescription = "Born in a trunk."});
  EXPECT_EQ(refusal, (Notice{"⚠️ Name Needed ⚠️", "Please enter your stage name/name."}));
  EXPECT_EQ(scratch.game.world.enterPlayerDetails, 0);
  EXPECT_EQ(scratch.game.world.aboutDescription, "");
  EXPECT_TRUE(scratch.store.dictionary().empty());
}

TEST(NewCareer, The_confirmed_form_is_there_after_a_launch) {
  ScratchGame scratch;
  loadWorld(scratch.game);
  scratch.game.world.yearNumber = 2031;  // of a career that ended without a restart of the clock
  chooseAge(scratch.game, 31);
  chooseHeadshot(scratch.game, Image{Bytes(2, std::byte{7})});
  EXPECT_EQ(
      confirmNewCareer(scratch.game, {.myName = "Ada 🎭", .aboutDescription = "Reads.", .isMale = false}),
      std::nullopt);

  const WorldState world = relaunched(scratch);
  EXPECT_EQ(world.myName, "Ada 🎭");
  EXPECT_EQ(world.aboutDescription, "Reads.");
  EXPECT_FALSE(world.isMale);
  EXPECT_EQ(world.enterPlayerDetails, 1);
  EXPECT_EQ(world.yearNumber, 2026);
  EXPECT_EQ(world.ageCount, 31);
  EXPECT_EQ(world.birthYear, 1995);
  Game owner{.store = scratch.store, .random = scratch.random};
  load<&WorldState::headshotImage>(owner);
  EXPECT_EQ(owner.world.headshotImage, scratch.game.world.headshotImage);
}

TEST(NewCareer, An_age_that_is_never_touched_stays_18_and_born_in_2005) {
  ScratchGame scratch;
  loadWorld(scratch.game);
  EXPECT_EQ(confirmNewCareer(scratch.game, {.myName = " "}), std::nullopt);
  EXPECT_EQ(scratch.game.world.ageCount, 18);
  EXPECT_EQ(scratch.game.world.birthYear, 2005);
}

TEST(NewCareer, A_performer_without_agent_wins_fans_at_the_plain_rate) {
  ScratchGame scratch;
  EXPECT_EQ(scratch.game.world.agentFanBonus, 0.0);
  EXPECT_EQ(confirmNewCareer(scratch.game, {.myName = "Ada"}), std::nullopt);
  EXPECT_EQ(scratch.game.world.agentFanBonus, 1.0);
  EXPECT_EQ(relaunched(scratch).agentFanBonus, 1.0);

  scratch.game.world.saveAllTalentAgents = {{.name = "offered"}, {.name = "signed", .isSigned = 1}};
  scratch.game.world.agentFanBonus = 1.4;
  save<&WorldState::saveAllTalentAgents, &WorldState::agentFanBonus>(scratch.game);
  EXPECT_EQ(relaunched(scratch).agentFanBonus, 1.4);
}

struct Restart : testing::Test {
  ScratchGame scratch;
  WorldState& world = scratch.game.world;
};

TEST_F(Restart, The_vault_becomes_cash_and_lasting_gains_carry_over) {
  world.totalCashAvailable = 77;
  world.myVault = 1000;
  world.permanentEnergyUpgrade = 20;
  world.permanentExperience = 35;
  world.weekNumber = 30;
  world.yearNumber = 2044;
  restartCareer(scratch.game);
  for (const WorldState& now : {world, relaunched(scratch)}) {
    EXPECT_EQ(now.totalCashAvailable, 1000.0);
    EXPECT_EQ(now.myVault, 0.0);
    EXPECT_EQ(now.totalEnergyMax, 120);
    EXPECT_EQ(now.totalEnergyAvailable, 120);
    EXPECT_EQ(now.experience, 35.0);
    EXPECT_EQ(now.weekNumber, 1);
    EXPECT_EQ(now.weekNumberForTracking, 1);
    EXPECT_EQ(now.yearNumber, 2026);
  }
}

TEST_F(Restart, Lasting_losses_do_not_carry_over) {
  world.permanentEnergyUpgrade = -3;
  world.permanentExperience = -40;
  world.experience = 900;
  world.totalEnergyMax = 31;
  restartCareer(scratch.game);
  EXPECT_EQ(world.totalEnergyMax, 100);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
  EXPECT_EQ(world.experience, 0.0);
}

TEST_F(Restart, The_old_careers_expenses_end_and_its_cameo_sales_stay) {
  world.saveAllWeeklyLineItems = {{.category = 878, .title = "Barber", .amount = 45, .typeOfExpense = 104}};
  world.saveAllCameos = {{.weekNumberForTracking = 9, .numberOfPurchases = 12}};
  save<&WorldState::saveAllCameos>(scratch.game);
  restartCareer(scratch.game);
  for (const WorldState& now : {world, relaunched(scratch)}) {
    EXPECT_EQ(now.saveAllWeeklyLineItems, (List<WeeklyLineItem>{basicNeeds}));
    EXPECT_EQ(now.saveAllCameos.size(), 1u);
  }
}

TEST_F(Restart, The_streaming_world_goes_and_the_salary_stays) {
  world.isPlatformLaunched = 1;
  world.platformName = "Velora";
  world.platformSalary = 52000;
  world.platformAttributePoints = 4;
  world.platformLaunchYear = 2040;
  world.saveRivalPlatforms = {{.id = 3}};
  world.saveRivalHoldings = {{.rivalId = 3, .shares = 10}};
  world.saveAuctionHeat = 5;
  world.saveLastAuctionWeek = 800;
  world.savePlatformExclusiveFilmIds = {12};
  world.savePortfolioValueHistory = {1.5};
  world.saveSharkBoxDeals = {{.id = 1}};
  restartCareer(scratch.game);
  EXPECT_EQ(world.isPlatformLaunched, 0);
  EXPECT_EQ(world.platformName, "");
  EXPECT_EQ(world.platformCashAvailable, 0.0);
  EXPECT_TRUE(world.saveRivalPlatforms.empty());
  EXPECT_TRUE(world.saveRivalHoldings.empty());
  EXPECT_EQ(world.saveAuctionHeat, 0);
  EXPECT_EQ(world.saveLastAuctionWeek, 0);
  EXPECT_TRUE(world.savePlatformExclusiveFilmIds.empty());
  EXPECT_TRUE(world.savePortfolioValueHistory.empty());
  EXPECT_TRUE(world.saveSharkBoxDeals.empty());
  EXPECT_EQ(world.platformSalary, 52000);
  EXPECT_EQ(world.platformAttributePoints, 4);
  EXPECT_EQ(world.platformLaunchYear, 2040);
}

TEST_F(Restart, Fans_of_the_running_session_go_on_and_everything_on_screen_is_forgotten) {
  world.fanGainCarry = 400;
  world.WeekFeed = {"a line"};
  world.selectedAuditionIndex = 3;
  world.releaseOffered = true;
  restartCareer(scratch.game);
  EXPECT_EQ(world.fanGainCarry, 400);
  EXPECT_TRUE(world.WeekFeed.empty());
  EXPECT_EQ(world.selectedAuditionIndex, -1);
  EXPECT_FALSE(world.releaseOffered);
}

TEST(LoadedCareer, Pays_for_its_basic_needs_even_when_the_store_forgot_them) {
  ScratchGame scratch;
  scratch.game.world.saveAllWeeklyLineItems = {
      {.category = 1, .title = "AG Monthly Dues", .typeOfExpense = 1}};
  scratch.game.world.yearNumber = 2030;
  save<&WorldState::saveAllWeeklyLineItems, &WorldState::yearNumber>(scratch.game);

  const WorldState world = relaunched(scratch);
  ASSERT_EQ(world.saveAllWeeklyLineItems.size(), 2u);
  EXPECT_EQ(world.saveAllWeeklyLineItems.back().title, "Basic Needs");
  EXPECT_EQ(world.saveAllWeeklyLineItems.back().year, 2030);
  EXPECT_EQ(relaunched(scratch).saveAllWeeklyLineItems.size(), 2u);  // written, and added once
}

}  // namespace
}  // namespace tb
