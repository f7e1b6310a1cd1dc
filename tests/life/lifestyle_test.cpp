// Weekly options, options that are claimed once, and what the weekly energy is made of.

#include <gtest/gtest.h>

#include "career/class_table.h"
#include "core/weekly_option.h"
#include "life/energy.h"
#include "life/one_time_options.h"
#include "life/weekly_options.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Lifestyle : test::RuleTest {
  Lifestyle() { world.totalCashAvailable = 1'000; }
  const OneTimeOption& bachelor = oneTimeOptions()[0];
  const OneTimeOption& doctor = oneTimeOptions()[1];
  const OneTimeOption& bribed = oneTimeOptions()[2];
};

TEST_F(Lifestyle, AnOptionIsPaidForOnceAtATime) {
  constexpr std::int64_t barber = 104;
  EXPECT_FALSE(buyWeeklyOption(game, barber));
  world.yearNumber += 1;
  EXPECT_FALSE(buyWeeklyOption(game, barber));
  EXPECT_EQ(world.totalEnergyMax, 101);
  EXPECT_EQ(world.totalCashAvailable, 910);
  ASSERT_EQ(world.saveAllWeeklyLineItems.size(), 1u);
  EXPECT_EQ(world.saveAllWeeklyLineItems[0], (WeeklyLineItem{.category = 878,
                                                             .title = "Barber",
                                                             .amount = 45,
                                                             .year = world.yearNumber,
                                                             .typeOfExpense = barber,
                                                             .energyBoost = 1}));
  cancelWeeklyOption(game, barber);
  cancelWeeklyOption(game, barber);
  EXPECT_EQ(world.totalEnergyMax, 100);
  EXPECT_TRUE(world.saveAllWeeklyLineItems.empty());

  world.totalCashAvailable = 44.99;
  EXPECT_EQ(buyWeeklyOption(game, barber)->message,
            "Selecting this option requires an initial payment of $45 which you do not currently have.");
  EXPECT_EQ(world.totalCashAvailable, 44.99);
}

// Each option that needs something, before and after it is there.
TEST_F(Lifestyle, SomeOptionsNeedSomethingFirst) {
  const auto unmet = [&] {
    std::vector<std::string> titles;
    for (const WeeklyOption& option : weeklyOptions()) {
      const Refusal refusal = weeklyOptionRefusal(game, option.id);
      if (!refusal) continue;
      EXPECT_EQ(refusal->title, "Requirements Not Met");
      EXPECT_EQ(refusal->message, "\nThere is a requirement that you haven't met yet");
      EXPECT_EQ(refusal->brief, option.requirement);
      titles.emplace_back(option.title);
    }
    return titles;
  };
  world.totalCashAvailable = 7'500;
  world.ageCount = 20;
  world.saveFameLevel = 80;
  std::vector<std::string> left = {"Wine Club", "Housekeeper",       "House Chef",
                                   "Driver",    "Celebrity Stylist", "Yellowstone Club"};
  EXPECT_EQ(unmet(), left);
  world.ageCount = 21;
  left.erase(left.begin());
  EXPECT_EQ(unmet(), left);
  world.saveAllPropertyList = {{}};
  left.erase(left.begin(), left.begin() + 2);
  EXPECT_EQ(unmet(), left);
  world.saveAllTransportationOwnedList = {{}};
  left.erase(left.begin());
  EXPECT_EQ(unmet(), left);
  world.saveFameLevel = 81;
  EXPECT_EQ(unmet(), std::vector<std::string>{});
  for (const WeeklyOption& option : weeklyOptions()) {
    world.totalCashAvailable = 7'500;
    EXPECT_FALSE(buyWeeklyOption(game, option.id));
  }
  EXPECT_EQ(world.totalEnergyMax, 128);
}

TEST_F(Lifestyle, TheBachelorNeedsAll47Classes) {
  for (const JulliardClass& row : julliardClasses) {
    EXPECT_EQ(claimOneTimeOption(game, bachelor)->title, "Requirements Not Met");
    world.saveAllCompletedClasses.push_back({.classId = row.id, .weeksRemaining = 1});
    world.saveAllCompletedClasses.push_back({.classId = julliardClasses[0].id, .weeksRemaining = 0});
  }
  EXPECT_EQ(oneTimeRefusal(world, bachelor)->brief, "1 of 47 classes");
  for (std::size_t index = 0; index < world.saveAllCompletedClasses.size(); ++index) {
    world.saveAllCompletedClasses.edit(index).weeksRemaining = 0;
  }
  EXPECT_FALSE(claimOneTimeOption(game, bachelor));
  EXPECT_EQ(world.experience, 500);
  EXPECT_EQ(world.totalCashAvailable, 1'000);
  EXPECT_EQ(claimOneTimeOption(game, bachelor),
            (Notice{.title = "Already Purchased",
                    .message = "\nYou have already purchased and gained this benefit."}));
  EXPECT_EQ(world.experience, 500);
}

TEST_F(Lifestyle, ADoctorForgetsBadCheckupsAndBribesAreForgottenForFree) {
  for (const auto& [total, after] : {std::pair{-7, 0}, {0, 0}, {7, 7}}) {
    world.saveOneTime.clear();
    world.annualCheckupTotal = total;
    EXPECT_FALSE(claimOneTimeOption(game, doctor));
    EXPECT_EQ(world.annualCheckupTotal, after);
    EXPECT_EQ(world.totalEnergyMax, 100);
  }
  EXPECT_EQ(world.totalCashAvailable, 1'000 - 3 * 25'000);

  world.saveBribePrice = 64'000;
  EXPECT_FALSE(claimOneTimeOption(game, bribed));
  EXPECT_EQ(world.saveBribePrice, 500);
  EXPECT_EQ(world.totalCashAvailable, 1'000 - 3 * 25'000);
  EXPECT_EQ(world.saveOneTime, (IntList{901, 902}));
}

TEST_F(Lifestyle, EnergyIsRefilledLessTheDrains) {
  const auto afterRefill = [&](std::int64_t left, std::int64_t maximum, std::int64_t children) {
    world.totalEnergyAvailable = left;
    world.totalEnergyMax = maximum;
    world.childEnergyCost = children;
    refillEnergy(game);
    return world.totalEnergyAvailable;
  };
  EXPECT_EQ(afterRefill(130, 100, 10), 120);
  EXPECT_EQ(afterRefill(100, 100, 10), 90);
  EXPECT_EQ(afterRefill(0, 25, 26), 0);
  EXPECT_EQ(afterRefill(0, -3, 0), 0);
  for (int role = 0; role < 6; ++role) {
    world.saveAllAuditionList.push_back({.isPrincipal = 1, .funnelStage = funnel::booked});
  }
  EXPECT_EQ(afterRefill(0, 100, 0), 99);
}

TEST_F(Lifestyle, TheSourcesOfEnergyAddUp) {
  world.permanentEnergyUpgrade = 12;
  world.saveAgeLoss = -30;
  world.energyLossExDrama = 3;
  world.annualCheckupTotal = -4;
  world.saveAllWeeklyLineItems = {{.category = 878, .energyBoost = 2}, {.category = 878, .energyBoost = 3}};
  world.saveAllPropertyList = {{.isPrimary = 1, .energyBonus = 9}, {.energyBonus = 50}};
  world.saveAllTransportationOwnedList = {{.isPrimary = 1, .energyBonus = 4}, {.energyBonus = 50}};
  world.saveAllMatchesList = {{.energyBonus = 70}, {.energyBonus = 7, .relationshipState = bond::married}};
  world.totalEnergyMax = 120;
  const EnergySources sources = energySources(world);
  EXPECT_EQ(sources.base, 112);
  EXPECT_EQ(sources.drama, -3);
  EXPECT_EQ(sources.subscriptions, 5);
  EXPECT_EQ(sources.properties, 9);
  EXPECT_EQ(sources.vehicles, 4);
  EXPECT_EQ(sources.relationships, 7);
  EXPECT_EQ(sources.other, 120 - (112 - 30 - 3 - 4 + 5 + 9 + 4 + 7));
}

// The forecast is what the birthdays bring.
TEST_F(Lifestyle, BirthdaysTakeWhatTheForecastSays) {
  world.totalEnergyMax = 60;
  world.ageCount = 37;
  const std::vector<std::int64_t> forecast = maximumAtBirthdays(world, 60);
  ASSERT_EQ(forecast.size(), 23u);
  for (const std::int64_t maximum : forecast) {
    world.ageCount += 1;
    ageEnergyCeiling(world);
    EXPECT_EQ(world.totalEnergyMax, maximum) << world.ageCount;
  }
  EXPECT_EQ(forecast[1], 58);
  EXPECT_EQ(forecast[2], 56);
  EXPECT_EQ(forecast.back(), 25);
  EXPECT_TRUE(maximumAtBirthdays(world, 60).empty());
}

}  // namespace
}  // namespace tb
