// The event buttons of a week: how many come, what they take and what they bring.

#include "life/week_events.h"

#include <algorithm>
#include <format>
#include <gtest/gtest.h>
#include <map>

#include "core/talent_scores.h"
#include "tests/scratch_game.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using enum WeekEvent;

struct WeekEvents : test::RuleTest {
  WeekEvents() { world.totalEnergyAvailable = 100; }

  void setTraits(std::int64_t points) {
    world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
        points;
  }
  // Uses the event with its decisive draw, and with the first row for the line.
  WeekEventResult use(WeekEvent event, std::int64_t rows, std::int64_t row) {
    random.range(rows, row);
    if (event != talentChance) random.any(1);
    return useWeekEvent(game, event);
  }
};

TEST_F(WeekEvents, ComeUpToThreeAtATime) {
  for (const auto& [roll, buttons] :
       {std::pair{0, 0}, {20, 0}, {21, 1}, {60, 1}, {61, 2}, {90, 2}, {91, 3}, {100, 3}}) {
    random.range(101, roll);
    for (int button = 0; button < buttons; ++button) random.range(9, 4);
    EXPECT_EQ(drawWeekEvents(game), std::vector<WeekEvent>(static_cast<std::size_t>(buttons), talentChance))
        << roll;
  }
  random.range(101, 100).range(9, 0).range(9, 8).range(9, 7);
  EXPECT_EQ(drawWeekEvents(game), (std::vector{localTheater, publicImage})) << "no show to go to";
}

// What is refused with a point or a cent too little, and what happens with just enough.
TEST(GoldenLife, EventsByWhatThePlayerHas) {
  test::Sheet sheet("life_events");
  for (std::int64_t number = 1; number <= 9; ++number) {
    const auto event = static_cast<WeekEvent>(number);
    for (const std::int64_t state : {bond::matched, bond::dating}) {
      if (event != relationship && state == bond::dating) continue;
      const auto withEnergy = [&](std::int64_t missing) {
        return [=](WorldState& world) {
          world.saveAllMatchesList = {{.relationshipState = state}};
          world.totalEnergyAvailable = energyFor(world, event) - missing;
          world.totalCashAvailable = event == healthCheckup ? 100 - static_cast<double>(missing) / 100 : 20;
          world.weekNetIncome = 3;
          world.yearToDatePaycheck = 4;
        };
      };
      test::ScratchGame scratch;
      withEnergy(0)(scratch.world);
      const std::string title =
          std::format("{} for {} energy", titleOf(scratch.game, event), energyFor(scratch.world, event));
      for (const std::int64_t missing : {1, 0}) {
        sheet.action(std::format("{}, {}", title, missing == 1 ? "almost enough" : "just enough"),
                     withEnergy(missing), [&](Game& game) -> Refusal {
                       if (Refusal refusal = weekEventRefusal(game.world, event)) return refusal;
                       useWeekEvent(game, event);
                       return {};
                     });
      }
    }
  }
}

TEST_F(WeekEvents, PayByTheCash) {
  for (const auto& [cash, most] : {std::pair{-0.01, 500},
                                   {0.0, 250},
                                   {999.99, 250},
                                   {1'000.0, 500},
                                   {9'999.99, 500},
                                   {10'000.0, 5'000},
                                   {99'999.99, 5'000},
                                   {100'000.0, 500}}) {
    world.totalCashAvailable = cash;
    world.weekNetIncome = world.yearToDatePaycheck = 0;
    world.totalEnergyAvailable = 25;
    random.unit(1).any(1);
    EXPECT_EQ(useWeekEvent(game, relationship).change, 1);
    EXPECT_DOUBLE_EQ(world.totalCashAvailable, cash + most) << cash;
    EXPECT_EQ(world.weekNetIncome, most);
    EXPECT_EQ(world.yearToDatePaycheck, most);
  }
  world.totalCashAvailable = 0;
  world.totalEnergyAvailable = 30;
  random.unit(0).any(1);
  EXPECT_TRUE(useWeekEvent(game, sideHustle).text.contains("$50"));
}

TEST_F(WeekEvents, ACheckupMovesTheMaximumAndTheRecord) {
  std::map<std::int64_t, int> rows;
  for (std::int64_t row = 0; row < 15; ++row) {
    world.totalEnergyMax = 25;
    world.annualCheckupTotal = 0;
    world.totalCashAvailable = 100;
    const WeekEventResult result = use(healthCheckup, 15, row);
    rows[result.change] += 1;
    EXPECT_EQ(world.totalEnergyMax, 25 + result.change) << "no floor here";
    EXPECT_EQ(world.annualCheckupTotal, result.change);
    EXPECT_EQ(world.totalCashAvailable, 0);
    EXPECT_EQ(world.activityTracker.front(), result.text);
    EXPECT_EQ(result.text.contains(std::format("{:+}", result.change)), result.change != 0) << result.text;
  }
  EXPECT_EQ(rows, (std::map<std::int64_t, int>{{-2, 3}, {-1, 3}, {0, 2}, {1, 3}, {2, 3}, {3, 1}}));
  EXPECT_EQ(world.totalEnergyAvailable, 100);

  EXPECT_EQ(titleOf(game, healthCheckup), "Health Checkup $100");
  setTraits(120);
  EXPECT_EQ(titleOf(game, healthCheckup), "Health Checkup $11,600");
}

TEST_F(WeekEvents, AChanceRaisesATraitUpTo110) {
  const std::array points = {&WorldState::talentTrait1, &WorldState::talentTrait2, &WorldState::talentTrait3,
                             &WorldState::talentTrait4, &WorldState::talentTrait5};
  const std::array names = {"Charisma", "Adaptability", "Physicality", "Memorization", "Voice"};
  for (std::int64_t roll = 0; roll < 100; ++roll) {
    const std::size_t raised = roll < 40 ? static_cast<std::size_t>(roll / 10) : roll < 45 ? 4 : 5;
    for (const std::int64_t before : {109, 110}) {
      setTraits(before);
      world.totalEnergyAvailable = 50;
      const WeekEventResult result = use(talentChance, 100, roll);
      EXPECT_EQ(world.totalEnergyAvailable, 0);
      for (std::size_t trait = 0; trait < points.size(); ++trait) {
        EXPECT_EQ(world.*points[trait], trait == raised ? 110 : before) << roll;
      }
      if (raised == 5) {
        EXPECT_TRUE(result.text.ends_with("but luck wasn’t on your side this time."));
      } else if (before == 110) {
        EXPECT_EQ(result.text, std::format("You have reached the maximum in {}.", names[raised]));
      } else {
        EXPECT_EQ(result.text, std::format("You successfully raised your {} by +1 🎉", names[raised]));
      }
    }
  }
}

TEST_F(WeekEvents, PublicImageRisesAboveAHundred) {
  std::map<std::int64_t, int> rows;
  for (std::int64_t row = 0; row < 16; ++row) {
    world.publicImage = 99;
    world.totalEnergyAvailable = 10;
    EXPECT_TRUE(
        use(publicImage, 16, row)
            .text.ends_with(std::format(" Your public image has improved by +{}", world.publicImage - 99)));
    rows[world.publicImage - 99] += 1;
  }
  EXPECT_EQ(rows, (std::map<std::int64_t, int>{{1, 5}, {2, 4}, {3, 3}, {4, 2}, {5, 1}, {6, 1}}));
}

}  // namespace
}  // namespace tb
