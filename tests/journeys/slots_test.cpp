// Slots, backups and the bank as a player uses them.

#include <format>
#include <gtest/gtest.h>

#include "core/save_backups.h"
#include "core/save_slots.h"
#include "core/save_store.h"
#include "core/stored_value.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

const std::string emptySlot = "Empty — start a new career";

class Slots : public testing::Test {
 protected:
  Slots() {
    device.begin([](WorldState& world) {
      world.totalCashAvailable = 5'000;
      world.totalFans = 1'200;
      world.saveBoxOffice = 3'400'000;
    });
  }

  [[nodiscard]] test::Player& player() { return device.player(); }
  [[nodiscard]] plist::Dictionary stored() { return SaveStore(device.port).dictionary(); }
  [[nodiscard]] std::size_t backups() const {
    return device.documents.list(SaveBackupManager::backupFolderName)->size();
  }

  void openPicker() { player().follow({"Settings", "Choose a save"}); }
  void beginCareer(const std::string& name) {
    player().type("Stage name", name);
    player().press("Start my career");
  }
  void play(const std::string& name) {
    openPicker();
    player().press("Play " + name);
  }

  test::SeededRandom random{3};
  test::Device device{random};
};

TEST_F(Slots, CareersSideBySideKeepEveryKey) {
  std::map<std::string, plist::Dictionary> left;
  openPicker();
  player().expectSees({"Ada Quinn", "1.2K fans   ·   🎬 $3.4M box office"});
  player().press(emptySlot);
  EXPECT_EQ(player().title(), "A star is cast");
  EXPECT_EQ(device.world().totalFans, 0);
  EXPECT_EQ(device.world().saveSchemaVersion, 1);
  beginCareer("Bea Stone");
  device.playWeeks(2);
  openPicker();
  player().press(emptySlot);
  beginCareer("Cleo Marsh");
  // The keys that belong to no slot differ.
  const auto career = [this] {
    plist::Dictionary values = stored();
    std::erase_if(values, [](const auto& entry) {
      return entry.first == "activeSaveSlot" || entry.first == "crossSaveVault";
    });
    return values;
  };
  const char* const names[] = {"Ada Quinn", "Bea Stone", "Cleo Marsh"};
  for (int turn = 0; turn < 100; ++turn) {
    const char* const name = names[turn % 3];
    left[player().title()] = career();
    if (turn % 5 == 4) device.launch();
    device.documents.answersLater = turn % 2 == 0;
    play(name);
    for (const auto& answer : std::exchange(device.documents.waiting, {})) device.app().goOn(answer);
    EXPECT_EQ(player().title(), name);
    if (const auto before = left.find(name); before != left.end()) {
      ASSERT_TRUE(career() == before->second) << "switch " << turn;
    }
    if (turn % 4 == 3) device.playWeeks();
  }
}

TEST_F(Slots, TheBankIsSharedAndOutlivesSwitches) {
  openPicker();
  player().type("Amount", "1,500");
  player().press("DEPOSIT");
  EXPECT_DOUBLE_EQ(device.world().totalCashAvailable, 3'500);
  player().type("Amount", "3501");
  EXPECT_TRUE(player().sees("More than your cash")) << ::testing::PrintToString(player().words());
  player().press(emptySlot);
  beginCareer("Bea Stone");
  device.launch();
  openPicker();
  player().type("Amount", "1500");
  player().press("WITHDRAW");
  EXPECT_DOUBLE_EQ(device.world().crossSaveVault, 0);
  player().press("Play Ada Quinn");
  EXPECT_DOUBLE_EQ(device.world().crossSaveVault, 0);
  EXPECT_DOUBLE_EQ(device.world().totalCashAvailable, 3'500);

  WorldState world;
  world.totalCashAvailable = 10;
  for (const Real amount : {0.0, -1.0, 11.0, std::nan("")}) EXPECT_FALSE(depositInBank(world, amount));
  EXPECT_FALSE(withdrawFromBank(world, 1));
}

TEST_F(Slots, ADeletedCareerLeavesABackup) {
  openPicker();
  player().press(emptySlot);
  beginCareer("Bea Stone");
  play("Ada Quinn");
  // Of the two careers only the deleted one stays as a backup.
  const auto kept = device.documents.list(SaveBackupManager::backupFolderName).value();
  for (const auto& backup : kept) {
    ASSERT_TRUE(device.documents.remove(SaveBackupManager::backupFolderName, backup.name));
  }
  const std::size_t before = backups();
  openPicker();
  player().follow({"Delete Bea Stone", "Delete"});
  EXPECT_FALSE(player().sees("Bea Stone"));
  EXPECT_EQ(backups(), before + 1);
  player().press("Back");
  player().follow({"Backups", "Restore Week 1 of 2026", "Restore"});
  player().expectTold("Backup Restored");
  EXPECT_EQ(player().title(), "Bea Stone");
}

TEST_F(Slots, ADamagedOrUnwritableSaveChangesNothing) {
  device.documents.files[{"SaveSlots", "slot-1.plist"}] = Bytes(40);
  openPicker();
  EXPECT_TRUE(player().sees("A save that can't be read"));
  const plist::Dictionary before = stored();
  // A slot that can't be looked up is not empty.
  for (bool* const fault : {&device.documents.isUnreadable, &device.documents.isFull}) {
    ASSERT_TRUE(player().sees(emptySlot));
    *fault = true;
    player().press(emptySlot);
    EXPECT_EQ(player().said(), "That save could not be opened. Your career is as it was.");
    EXPECT_TRUE(stored() == before);
    EXPECT_EQ(player().title(), "CHOOSE A SAVE");
    EXPECT_EQ(player().sees(emptySlot), fault == &device.documents.isFull);
    *fault = false;
    player().press("Back");
    player().press("Choose a save");
  }
}

TEST_F(Slots, TheEightNewestBackupsStayAndOneCanBeRestored) {
  player().follow({"Settings", "Backups"});
  for (int count = 1; count <= 10; ++count) player().press("Back up now");
  EXPECT_EQ(player().said(), "Backed up.");
  const auto names = *device.documents.list(SaveBackupManager::backupFolderName);
  ASSERT_EQ(names.size(), SaveBackupManager::maxBackups);
  EXPECT_EQ(names.front().name, "save-2001-01-01-000002.plist");
  EXPECT_EQ(names.back().name, "save-2001-01-01-000009.plist");

  // The clock was set back: a new backup is still the last to go.
  device.documents.files[{"SaveBackups", "save-2031-12-31-235959.plist"}] = Bytes(40);
  player().press("Back up now");
  EXPECT_TRUE(device.documents.files.contains({"SaveBackups", "save-2032-01-01-000000.plist"}));

  const plist::Dictionary before = stored();
  device.playWeeks(2);
  player().follow({"Settings", "Backups", "Restore Week 1 of 2026", "Restore"});
  player().expectTold("Backup Restored");
  EXPECT_TRUE(stored() == before);
  EXPECT_EQ(player().title(), "Ada Quinn");
}

TEST_F(Slots, ABackupThatCannotBeReadIsRefused) {
  device.documents.files[{"SaveBackups", "save-2001-01-01-000000.plist"}] =
      plist::write(plist::Value{plist::Dictionary{{"enterPlayerDetails", plist::Value{std::int64_t{0}}}}});
  const plist::Dictionary before = stored();
  player().follow({"Settings", "Backups", "Restore Week 0 of 0", "Restore"});
  player().expectTold("Not Restored");
  EXPECT_TRUE(stored() == before);
}

// One byte of each: the last letter of the player's name.
TEST_F(Slots, ADamagedSlotOrBackupSaysSoBeforeAnythingIsReplaced) {
  openPicker();
  player().press(emptySlot);
  beginCareer("Bea Stone");
  const auto damage = [this](std::string_view folder, std::string_view name) {
    for (auto& [place, content] : device.documents.files) {
      if (place.first != folder) continue;
      const auto at = std::ranges::search(content, std::as_bytes(std::span(name)));
      if (!at.empty()) at.back() = std::byte{'m'};
    }
  };
  const auto asksFirst = [this](std::initializer_list<std::string> presses, std::string_view name) {
    const plist::Dictionary before = stored();
    player().follow(presses);
    EXPECT_TRUE(player().sees("This Save Is Damaged"));
    EXPECT_TRUE(stored() == before);
    player().press("Keep playing");
    EXPECT_TRUE(stored() == before);
    player().follow(presses);
    player().press("Open it anyway");
    EXPECT_EQ(device.world().myName, name);
    EXPECT_FALSE(SaveStore(device.port).contains("saveChecksum"));
  };
  damage(SlotManager::slotFolderName, "Ada Quinn");
  openPicker();
  asksFirst({"Play Ada Quinm"}, "Ada Quinm");

  damage(SaveBackupManager::backupFolderName, "Bea Stone");
  player().follow({"Settings", "Backups"});
  asksFirst({"Restore Week 1 of 2026", "Restore"}, "Bea Stonm");
}

// Older builds wrote them so.
TEST_F(Slots, ASlotWithoutAChecksumIsOpened) {
  openPicker();
  player().press(emptySlot);
  beginCareer("Bea Stone");
  Bytes& slot = device.documents.files[{"SaveSlots", "slot-0.plist"}];
  auto values = std::get<plist::Dictionary>(plist::read(slot)->held);
  ASSERT_EQ(std::erase_if(values, [](const auto& entry) { return entry.first == "saveChecksum"; }), 1U);
  slot = plist::write(plist::Value{values});
  play("Ada Quinn");
  EXPECT_EQ(player().title(), "Ada Quinn");
}

TEST_F(Slots, ANewYearAndARestartAreBackedUp) {
  device.playWeeks(60);
  const std::size_t before = backups();
  EXPECT_EQ(before, 1u);
  player().follow({"Settings", "Restart?", "Restart"});
  EXPECT_EQ(backups(), before + 1);
}

}  // namespace
}  // namespace tb
