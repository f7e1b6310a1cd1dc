#include "core/career_start.h"

#include <gtest/gtest.h>

#include "core/load_world.h"
#include "core/save.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

// That a restart sets every other variable as its table says is tested with the table, in dictionary_test.
struct CareerStart : test::RuleTest {
  // What the next launch finds.
  WorldState relaunched() {
    saveChanges(game);
    Game next{.store = store, .random = random};
    loadWorld(next);
    return next.world;
  }
};

TEST_F(CareerStart, A_performer_without_a_name_is_sent_back_to_the_form) {
  EXPECT_EQ(confirmNewCareer(game, {.aboutDescription = "Born in a trunk."})->title, "⚠️ Name Needed ⚠️");
  EXPECT_EQ(world.enterPlayerDetails, 0);
  EXPECT_TRUE(store.dictionary().empty());
}

TEST_F(CareerStart, The_confirmed_form_is_there_after_a_launch) {
  loadWorld(game);
  world.yearNumber = 2031;  // of a career that ended without a restart of the clock
  chooseAge(game, 31);
  EXPECT_FALSE(confirmNewCareer(game, {.myName = "Ada 🎭",
                                       .aboutDescription = "Reads.",
                                       .isMale = false,
                                       .headshotImage = Image{Bytes(2, std::byte{7})}}));
  const WorldState found = relaunched();
  EXPECT_EQ(found.myName, "Ada 🎭");
  EXPECT_EQ(found.aboutDescription, "Reads.");
  EXPECT_FALSE(found.isMale);
  EXPECT_EQ(found.enterPlayerDetails, 1);
  EXPECT_EQ(found.yearNumber, 2026);
  EXPECT_EQ(found.ageCount, 31);
  EXPECT_EQ(found.birthYear, 1995);
  EXPECT_EQ(found.headshotImage.bytes.size(), 2U);
}

TEST_F(CareerStart, An_age_that_is_never_touched_stays_18_and_born_in_2005) {
  loadWorld(game);
  EXPECT_FALSE(confirmNewCareer(game, {.myName = " "}));
  EXPECT_EQ(world.ageCount, 18);
  EXPECT_EQ(world.birthYear, 2005);
}

TEST_F(CareerStart, A_performer_without_agent_wins_fans_at_the_plain_rate) {
  EXPECT_EQ(world.agentFanBonus, 0.0);
  EXPECT_FALSE(confirmNewCareer(game, {.myName = "Ada"}));
  EXPECT_EQ(world.agentFanBonus, 1.0);
  EXPECT_EQ(relaunched().agentFanBonus, 1.0);
  world.saveAllTalentAgents = {{.name = "offered"}, {.name = "signed", .isSigned = 1}};
  world.agentFanBonus = 1.4;
  saveChanges(game);
  EXPECT_EQ(relaunched().agentFanBonus, 1.4);
}

TEST_F(CareerStart, A_restart_turns_the_vault_into_cash_and_carries_lasting_gains_over) {
  world.totalCashAvailable = 77;
  world.myVault = 1000;
  world.permanentEnergyUpgrade = 20;
  world.permanentExperience = 35;
  restartCareer(game);
  for (const WorldState& now : {world, relaunched()}) {
    EXPECT_EQ(now.totalCashAvailable, 1000.0);
    EXPECT_EQ(now.myVault, 0.0);
    EXPECT_EQ(now.totalEnergyMax, 120);
    EXPECT_EQ(now.totalEnergyAvailable, 120);
    EXPECT_EQ(now.experience, 35.0);
  }
}

TEST_F(CareerStart, A_restart_does_not_carry_lasting_losses_over) {
  world.permanentEnergyUpgrade = -3;
  world.permanentExperience = -40;
  world.experience = 900;
  world.totalEnergyMax = 31;
  restartCareer(game);
  EXPECT_EQ(world.totalEnergyMax, 100);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
  EXPECT_EQ(world.experience, 0.0);
}

TEST_F(CareerStart, A_restart_ends_the_old_expenses_and_the_streaming_world_and_keeps_what_outlives_it) {
  world.saveAllWeeklyLineItems = {{.category = 878, .title = "Barber", .amount = 45, .typeOfExpense = 104}};
  world.saveAllCameos = {{.weekNumberForTracking = 9, .numberOfPurchases = 12}};
  world.isPlatformLaunched = 1;
  world.platformName = "Velora";
  world.platformSalary = 52000;
  world.platformAttributePoints = 4;
  world.platformLaunchYear = 2040;
  world.saveRivalPlatforms = {{.id = 3}};
  world.saveSharkBoxDeals = {{.id = 1}};
  world.fanGainCarry = 400;  // of the running session
  world.WeekFeed = {"a line"};
  world.selectedAuditionIndex = 3;
  restartCareer(game);
  const WeeklyLineItem needs{
      .title = "Basic Needs", .amount = 50, .year = 2026, .isExpense = true, .typeOfExpense = -1};
  EXPECT_EQ(world.saveAllWeeklyLineItems, List<WeeklyLineItem>{needs});
  EXPECT_EQ(world.saveAllCameos.size(), 1u);
  EXPECT_EQ(world.isPlatformLaunched, 0);
  EXPECT_EQ(world.platformName, "");
  EXPECT_TRUE(world.saveRivalPlatforms.empty() && world.saveSharkBoxDeals.empty());
  EXPECT_EQ(world.platformSalary, 52000);
  EXPECT_EQ(world.platformAttributePoints, 4);
  EXPECT_EQ(world.platformLaunchYear, 2040);
  EXPECT_EQ(world.fanGainCarry, 400);
  EXPECT_TRUE(world.WeekFeed.empty());
  EXPECT_EQ(world.selectedAuditionIndex, -1);
}

TEST_F(CareerStart, A_loaded_career_pays_for_its_basic_needs_even_when_the_store_forgot_them) {
  world.saveAllWeeklyLineItems = {{.category = 1, .title = "AG Monthly Dues", .typeOfExpense = 1}};
  world.yearNumber = 2030;
  saveChanges(game);
  const WorldState found = relaunched();
  ASSERT_EQ(found.saveAllWeeklyLineItems.size(), 2u);
  EXPECT_EQ(found.saveAllWeeklyLineItems.back().title, "Basic Needs");
  EXPECT_EQ(found.saveAllWeeklyLineItems.back().year, 2030);
  EXPECT_EQ(relaunched().saveAllWeeklyLineItems.size(), 2u);  // written, and added once
}

}  // namespace
}  // namespace tb
