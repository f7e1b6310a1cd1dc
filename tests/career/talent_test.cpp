#include <gtest/gtest.h>

#include "career/classes.h"
#include "career/guild.h"
#include "career/showreel.h"
#include "career/traits.h"
#include "core/talent_scores.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct TalentRules : test::RuleTest {
  void setTraits(std::int64_t points) {
    for (const Trait& trait : traits) world.*trait.points = points;
  }
  void addWork(std::int64_t filmId, std::int64_t funnelStage, double performance, std::int64_t part = 1,
               std::int64_t didAct = 1) {
    world.saveAllAuditionList.push_back({.filmId = filmId,
                                         .isPrincipal = part,
                                         .funnelStage = funnelStage,
                                         .performanceRating = performance,
                                         .didAct = didAct});
  }
};

TEST_F(TalentRules, TraitsNeedEnergyAndStopAt100) {
  world.talentTrait2 = 99;
  world.talentTraitCost2 = 130;
  world.totalEnergyAvailable = 129;
  EXPECT_EQ(buyTrait(game, 2)->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(world.talentTrait2, 99);
  world.totalEnergyAvailable = 130;
  random.range(10, 0);
  EXPECT_FALSE(buyTrait(game, 2));
  EXPECT_EQ(world.talentTrait2, 100);
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  world.totalEnergyAvailable = 500;
  EXPECT_FALSE(buyTrait(game, 2));  // at the maximum: no change and no notice
  EXPECT_EQ(world.totalEnergyAvailable, 500);
  EXPECT_EQ(world.talentTraitCost2, 131);
}

TEST_F(TalentRules, ClassesCostAndGiveExperience) {
  world.totalCashAvailable = 12000;
  world.yearNumber = 2031;
  const ClassOption option = {.offered = classWithId(41), .weeks = 2, .cost = 11475, .energyCost = 29};
  random.range(20, 0);
  EXPECT_FALSE(signUpForClass(game, option));
  EXPECT_EQ(world.totalCashAvailable, 525);
  expectToldInTheLogAlone("You signed up for Scene Study IV at Julien.");
  EXPECT_EQ(test::shown(world.saveAllCompletedClasses),
            "(classId 41, energyCost 29, weeksTotal 2, weeksRemaining 2, experience 100, level 4, "
            "cost 11475, yearStarted 2031)");
  EXPECT_EQ(signUpForClass(game, option)->title, "🎭 Already Signed Up 🎭");

  advanceClasses(game);
  EXPECT_EQ(classEnergy(world), 29);
  EXPECT_EQ(world.experience, 0);
  advanceClasses(game);
  EXPECT_EQ(classEnergy(world), 0);
  expectToldInBothLists("You finished Drama 414");
  advanceClasses(game);  // a finished class does not change
  EXPECT_EQ(world.experience, 100);
  EXPECT_EQ(world.WeekFeed.size(), 1u);
}

TEST_F(TalentRules, ClassesCheckEnergyBeforeCash) {
  const ClassOption option = {.offered = classWithId(1), .weeks = 4, .cost = 2515, .energyCost = 14};
  EXPECT_EQ(signUpForClass(game, option)->message, "You do not have enough cash for the is class.");
  world.weeklyEnergyCost = 41;
  world.saveAllCompletedClasses = {{.classId = 2, .energyCost = 60, .weeksRemaining = 1}};
  EXPECT_TRUE(signUpForClass(game, option)->message.ends_with("losing -101 energy each week."));
  world.weeklyEnergyCost = 40;  // running classes may use all energy
  EXPECT_EQ(signUpForClass(game, option)->title, "💰 Not Enough Cash 💰");
}

TEST_F(TalentRules, BuysThePreviewedReel) {
  setTraits(60);
  world.totalCashAvailable = 399;
  addWork(1, 3, 80.9);
  addWork(2, 3, 70.5);
  addWork(3, 3, 99, 1, 0);  // directed only
  addWork(4, 2, 99);        // not wrapped yet
  addWork(5, 3, 60);
  addWork(6, 3, 50);
  EXPECT_EQ(allPerformanceFootage(world), (std::vector<std::size_t>{0, 1, 4, 5}));

  std::vector<std::int64_t> chosen;
  EXPECT_EQ(buildShowreelFromFootage(game, chosen, 50)->title, "🎞️ No Footage Selected 🎞️");
  for (const std::int64_t filmId : {1, 2, 5}) EXPECT_FALSE(chooseFootage(chosen, filmId));
  EXPECT_EQ(chooseFootage(chosen, 6)->title, "⚡️ Limit Reached ⚡️");
  EXPECT_FALSE(chooseFootage(chosen, 5));  // removed again
  EXPECT_EQ(chosen, (std::vector<std::int64_t>{1, 2}));

  random.unit(1);
  EXPECT_EQ(previewFootageReel(game, chosen), 55);  // (80 + 70 + 60 + 25) / 425
  EXPECT_FALSE(buildShowreelFromFootage(game, chosen, 55));
  EXPECT_EQ(world.totalCashAvailable, 0);
  expectToldInTheLogAlone("You updated your showreel using existing footage, and it’s now rated 55");
  EXPECT_TRUE(buildShowreelFromFootage(game, chosen, 99));  // no cash
  EXPECT_EQ(world.showreelScore, 55);
}

TEST_F(TalentRules, NewScenesReplaceTheReel) {
  setTraits(40);
  world.showreelScore = 90;
  world.totalCashAvailable = 2000;
  world.newScenesProduced = {7};
  const std::vector<std::string> scenes = {"a waiter quits", "a queen waits"};
  EXPECT_TRUE(produceShowreelScenes(game, 0, scenes, {}));  // more scenes than the package holds
  // x 15, a 40, b 30, E 0: top 21.25, low 0; v at the top (15 + 40 + 30 + 21.25) / 5 = 21.25
  random.unit(0.5).unit(1).unit(0.5).unit(1).unit(0).range(20, 0);
  EXPECT_FALSE(produceShowreelScenes(game, 1, scenes, {}));
  EXPECT_EQ(world.newScenesProduced, (IntList{21, 21}));
  EXPECT_EQ(world.newSceneDescriptions, (TextList{"a waiter quits", "a queen waits"}));
  EXPECT_EQ(world.existingFootageScore, 42);
  EXPECT_EQ(world.showreelScore, 19);  // (42 + 40 + 0) / 425: a new reel can be worse
  EXPECT_EQ(world.totalCashAvailable, 2000 - 699);
  expectToldInTheLogAlone(
      "You hired a production company for $699 to add a scene where a waiter quits and a queen waits to your "
      "showreel. Updated rating: 19");
  // Chosen footage replaces the scenes in the score.
  addWork(9, 3, 100);
  const std::vector<std::int64_t> footage = {9};
  random.unit(0.5).unit(1).unit(1).range(20, 1);
  EXPECT_FALSE(produceShowreelScenes(game, 0, std::vector<std::string>{"a duel"}, footage));
  EXPECT_EQ(world.existingFootageScore, 21);
  EXPECT_EQ(world.showreelScore, 38);  // (100 + 40 + 25) / 425
}

TEST_F(TalentRules, RepairsScenesWithoutScores) {
  world.newSceneDescriptions = {"a waiter quits", "a queen waits"};
  world.newScenesProduced = {21};
  openShowreel(game);
  EXPECT_EQ(world.newSceneDescriptions, (TextList{"a waiter quits"}));
  world.newSceneDescriptions.clear();
  openShowreel(game);
  EXPECT_TRUE(world.newScenesProduced.empty());
}

TEST_F(TalentRules, TheGuildNeedsRolesAndTheFee) {
  world.totalCashAvailable = 2999;
  world.yearNumber = 2028;
  addWork(1, 2, 0);
  addWork(2, 3, 0, 0);  // background
  addWork(3, 1, 0);     // invited only
  EXPECT_EQ(joinGuild(game)->message, "\nYou have not met the terms of eligibilty.");
  addWork(4, 3, 0);
  EXPECT_EQ(joinGuild(game)->message, "\nYou do not have cash to join.");
  world.totalCashAvailable = 3500;
  for (int attempt = 0; attempt < 2; ++attempt) EXPECT_FALSE(joinGuild(game));  // no change for a member
  EXPECT_EQ(world.totalCashAvailable, 500);
  EXPECT_EQ(world.isSAG, 1);
  EXPECT_EQ(world.memberSince, 2028);
  EXPECT_EQ(test::shown(world.saveAllWeeklyLineItems),
            "(category 1, title AG Monthly Dues, amount 20, year 2028, typeOfExpense 1)");
}

}  // namespace
}  // namespace tb
