#include "core/career_start.h"

#include <algorithm>
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

TEST_F(CareerStart, ConfirmingStartsTheFirstYearWithoutAnAgent) {
  world.yearNumber = 2031;  // from the previous career
  EXPECT_FALSE(confirmNewCareer(game, {.myName = "Ada", .isMale = false}));
  EXPECT_EQ(world.agentFanBonus, 1.0);
  EXPECT_EQ(relaunched().agentFanBonus, 1.0);
  EXPECT_EQ(relaunched().yearNumber, 2026);
  EXPECT_FALSE(relaunched().isMale);
  world.saveAllTalentAgents = {{.name = "offered"}, {.name = "signed", .isSigned = 1}};
  world.agentFanBonus = 1.4;
  saveChanges(game);
  EXPECT_EQ(relaunched().agentFanBonus, 1.4);
}

TEST_F(CareerStart, ARestartKeepsTheVaultAndPermanentGainsButNoLosses) {
  for (const auto& [energy, experience] : {std::pair{20, 35}, {-3, -40}}) {
    world.totalCashAvailable = 77;
    world.myVault = 1000;
    world.experience = 900;
    world.permanentEnergyUpgrade = energy;
    world.permanentExperience = experience;
    restartCareer(game);
    for (const WorldState& now : {world, relaunched()}) {
      EXPECT_EQ(now.totalCashAvailable, 1000.0);
      EXPECT_EQ(now.myVault, 0.0);
      EXPECT_EQ(now.totalEnergyMax, 100 + std::max(energy, 0));
      EXPECT_EQ(now.totalEnergyAvailable, now.totalEnergyMax);
      EXPECT_EQ(now.experience, std::max(experience, 0));
      ASSERT_EQ(now.saveAllWeeklyLineItems.size(), 1U);
      EXPECT_EQ(now.saveAllWeeklyLineItems.front().title, "Basic Needs");
    }
  }
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
