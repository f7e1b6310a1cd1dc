// Taking weeks back as a player does it.

#include "core/way_back.h"

#include <format>
#include <gtest/gtest.h>
#include <vector>

#include "core/save_store.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

class WayBack : public testing::Test {
 protected:
  WayBack() {
    device.begin([](WorldState& world) {
      world.totalCashAvailable = 5'000;
      world.isSAG = 1;
      for (std::int64_t id = 1; id <= 12; ++id) {
        world.saveAllAuditionList.push_back(test::bookedLead(id, 1, std::format("Title {}", id)));
      }
      world.weekNumber = 47;
    });
  }

  [[nodiscard]] test::Player& player() { return device.player(); }
  [[nodiscard]] plist::Dictionary stored() { return SaveStore(device.port).dictionary(); }

  void goBack() {
    player().follow({"Settings", "Back to last week", "Go back"});
    EXPECT_EQ(player().said(),
              std::format("This is week {} of {}.", device.world().weekNumber, device.world().yearNumber));
  }

  test::SeededRandom random{3};
  test::Device device{random};
};

TEST_F(WayBack, TenWeeksAcrossANewYearAreTakenBackAndHadAgain) {
  std::vector<plist::Dictionary> before;
  for (int week = 0; week < 12; ++week) {
    before.push_back(stored());
    device.playWeeks();
    if (week == 5) device.launch();
  }
  std::vector<plist::Dictionary> left;
  for (int week = 0; week < 10; ++week) {
    left.push_back(stored());
    goBack();
    EXPECT_TRUE(stored() == before.back()) << "week " << device.world().weekNumber;
    before.pop_back();
    if (week == 3) device.launch();
  }
  EXPECT_EQ(device.world().weekNumber, 49);
  player().press("Settings");
  EXPECT_TRUE(player().sees("0 of up to 10 weeks can be taken back."));
  EXPECT_FALSE(player().sees("Back to last week"));
  while (!left.empty()) {
    player().follow({"Undo going back", "Return"});
    EXPECT_TRUE(stored() == left.back());
    left.pop_back();
    player().press("Settings");
  }
  EXPECT_FALSE(player().sees("Undo going back"));
}

// A launch does not load the history of the cards' index, but going back is no launch.
TEST_F(WayBack, WhatWasDoneSinceIsUndoneAndNothingElse) {
  device.playWeeks(2);
  player().follow({"Settings", "Choose a save"});
  player().type("Amount", "1000");
  player().follow({"DEPOSIT", "Back", "Back"});
  const WorldState& world = device.world();
  const RealList cards = world.trackCardIndex;
  const Real cash = world.totalCashAvailable;
  ASSERT_EQ(cards.size(), 2u);
  device.playWeeks();
  player().follow({"Settings", "Choose a save"});
  player().type("Amount", "500");
  player().press("DEPOSIT");
  EXPECT_DOUBLE_EQ(world.crossSaveVault, 1'500);
  player().follow({"Back", "Back"});
  goBack();
  EXPECT_DOUBLE_EQ(world.crossSaveVault, 1'000);
  EXPECT_DOUBLE_EQ(world.totalCashAvailable, cash);
  EXPECT_EQ(world.trackCardIndex, cards);
  EXPECT_EQ(player().title(), "Ada Quinn");
  device.playWeeks();
  player().press("Settings");
  EXPECT_FALSE(player().sees("Undo going back")) << "another week has ended";
}

TEST_F(WayBack, AnotherCareerHasNoneOfTheseWeeks) {
  device.playWeeks(2);
  player().follow({"Settings", "Backups", "Back up now"});
  player().follow({"Restore Week 3 of 2026", "Restore"});
  player().expectTold("Backup Restored");
  player().press("Settings");
  EXPECT_TRUE(player().sees("0 of up to 10 weeks can be taken back."));
  player().press("Back");
  device.playWeeks();
  player().follow({"Settings", "Restart?", "Restart"});
  EXPECT_FALSE(lastWeek(device.app().game().store));
  player().type("Stage name", "Bea Stone");
  player().follow({"No way back", "Start my career"});
  EXPECT_TRUE(device.world().hasNoWayBack);
  device.playWeeks();
  EXPECT_FALSE(lastWeek(device.app().game().store));
  player().press("Settings");
  EXPECT_TRUE(player().sees("This career was started with no way back."));
}

TEST_F(WayBack, AShellTakesAWeekBackWithoutAGame) {
  const plist::Dictionary before = stored();
  device.playWeeks();
  {
    SaveStore store(device.port);
    EXPECT_EQ(lastWeek(store).value_or(CareerWeek{}).week, 47);
    device.port.failCommit(1);
    EXPECT_EQ(backToLastWeek(store).error(), "The disk is full.");
  }
  EXPECT_FALSE(stored() == before);
  SaveStore store(device.port);
  EXPECT_TRUE(backToLastWeek(store));
  EXPECT_TRUE(stored() == before);
  EXPECT_FALSE(backToLastWeek(store));
  device.launch();
  EXPECT_EQ(device.world().weekNumber, 47);
}

// One damaged row must not mix two weeks.
TEST_F(WayBack, ADamagedJournalIsRefused) {
  device.playWeeks(2);
  for (auto& [place, piece] : device.port.pieces) {
    if (piece.shape == Shape::journal) piece.bytes.resize(piece.bytes.size() / 2);
  }
  device.launch();
  const plist::Dictionary before = stored();
  EXPECT_FALSE(lastWeek(device.app().game().store));
  EXPECT_FALSE(device.app().game().store.weeks().goBack());
  EXPECT_TRUE(stored() == before);
}

}  // namespace
}  // namespace tb
