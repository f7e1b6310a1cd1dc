#include "core/career_start.h"

#include <gtest/gtest.h>

#include "core/load_world.h"
#include "core/save.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

// dictionary_test.cpp tests the restart values of all other variables.
struct CareerStart : test::RuleTest {
  // The state after the next launch.
  WorldState relaunched() {
    saveChanges(game);
    Game next{.store = store, .random = random};
    loadWorld(next);
    return next.world;
  }
};

TEST_F(CareerStart, RejectsAnEmptyName) {
  EXPECT_EQ(confirmNewCareer(game, {.aboutDescription = "Born in a trunk."})->title, "⚠️ Name Needed ⚠️");
  EXPECT_EQ(world.enterPlayerDetails, 0);
  EXPECT_TRUE(store.dictionary().empty());
}

TEST_F(CareerStart, SavesTheConfirmedForm) {
  loadWorld(game);
  world.yearNumber = 2031;  // from the previous career
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

TEST_F(CareerStart, TheDefaultAgeIs18AndTheBirthYear2005) {
  loadWorld(game);
  EXPECT_FALSE(confirmNewCareer(game, {.myName = " "}));
  EXPECT_EQ(world.ageCount, 18);
  EXPECT_EQ(world.birthYear, 2005);
}

TEST_F(CareerStart, FanBonusIsOneWithoutAnAgent) {
  EXPECT_EQ(world.agentFanBonus, 0.0);
  EXPECT_FALSE(confirmNewCareer(game, {.myName = "Ada"}));
  EXPECT_EQ(world.agentFanBonus, 1.0);
  EXPECT_EQ(relaunched().agentFanBonus, 1.0);
  world.saveAllTalentAgents = {{.name = "offered"}, {.name = "signed", .isSigned = 1}};
  world.agentFanBonus = 1.4;
  saveChanges(game);
  EXPECT_EQ(relaunched().agentFanBonus, 1.4);
}

TEST_F(CareerStart, ARestartCarriesVaultAndPermanentGainsOver) {
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

TEST_F(CareerStart, ARestartDropsPermanentLosses) {
  world.permanentEnergyUpgrade = -3;
  world.permanentExperience = -40;
  world.experience = 900;
  world.totalEnergyMax = 31;
  restartCareer(game);
  EXPECT_EQ(world.totalEnergyMax, 100);
  EXPECT_EQ(world.totalEnergyAvailable, 100);
  EXPECT_EQ(world.experience, 0.0);
}

TEST_F(CareerStart, ARestartClearsExpensesAndPlatform) {
  world.saveAllWeeklyLineItems = {{.category = 878, .title = "Barber", .amount = 45, .typeOfExpense = 104}};
  world.saveAllCameos = {{.weekNumberForTracking = 9, .numberOfPurchases = 12}};
  world.isPlatformLaunched = 1;
  world.platformName = "Velora";
  world.platformSalary = 52000;
  world.platformAttributePoints = 4;
  world.platformLaunchYear = 2040;
  world.saveRivalPlatforms = {{.id = 3}};
  world.saveSharkBoxDeals = {{.id = 1}};
  world.fanGainCarry = 400;  // from this session
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

TEST_F(CareerStart, LoadingAddsMissingBasicNeeds) {
  world.saveAllWeeklyLineItems = {{.category = 1, .title = "AG Monthly Dues", .typeOfExpense = 1}};
  world.yearNumber = 2030;
  saveChanges(game);
  const WorldState found = relaunched();
  ASSERT_EQ(found.saveAllWeeklyLineItems.size(), 2u);
  EXPECT_EQ(found.saveAllWeeklyLineItems.back().title, "Basic Needs");
  EXPECT_EQ(found.saveAllWeeklyLineItems.back().year, 2030);
  EXPECT_EQ(relaunched().saveAllWeeklyLineItems.size(), 2u);  // saved, and added once
}

}  // namespace
}  // namespace tb
