#include <gtest/gtest.h>

#include "tests/journeys/device.h"

namespace tb {
namespace {

using test::Player;

struct FirstCareerJourney : testing::Test {
  test::SeededRandom random{2026};
  test::Device device{random};

  void startCareer() {
    Player& player = device.player();
    ASSERT_EQ(player.title(), "A star is cast");
    player.press("Start my career");
    player.expectTold("⚠️ Name Needed ⚠️");
    player.type("Stage name", "  Ada {title} Vale ");
    player.slide("Age", 37);
    player.follow({"Female", "Headshot 2"});
    player.type("Biography", "Two left feet, one good side.");
    player.press("Start my career");
  }
  FirstCareerJourney() {
    device.launch();
    startCareer();
  }

  // The words of all tabs of the hub.
  std::vector<std::string> hubInFull() {
    std::vector<std::string> all;
    for (const char* tab : {"Work", "Social", "Life", "Wealth", "Home"}) {
      device.player().press(tab);
      const auto words = device.player().words();
      all.insert(all.end(), words.begin(), words.end());
    }
    return all;
  }
};

TEST_F(FirstCareerJourney, ARelaunchRestoresANewCareer) {
  Player& player = device.player();
  EXPECT_EQ(player.title(), "Ada {title} Vale");
  player.expectSees({"JANUARY\n2, 2026"});
  EXPECT_EQ(device.world().birthYear, 2026 - 37);

  player.follow({"Work", "Talent"});
  while (player.notice().empty()) {
    player.press("Train to " + std::to_string(device.world().talentTraitCost1));
  }
  player.expectTold("⚡️ Not Enough Energy ⚡️");
  player.follow({"Back", "Acting Classes", "Sign up"});
  player.expectTold("💰 Not Enough Cash 💰");
  player.follow({"Back", "The Backstage", "Actor's Guild", "Join"});
  player.expectTold("❌ Not Eligible ❌");
  player.follow({"Back", "Back"});

  const auto before = hubInFull();
  device.launch();
  EXPECT_EQ(hubInFull(), before);
}

TEST_F(FirstCareerJourney, ARelaunchRestoresAnyWeek) {
  for (int week = 1; week <= 120; ++week) {
    device.endWeek();
    device.player().expectSees(
        {"Week " + std::to_string((week - 1) % 52 + 1) + " of " + std::to_string(2026 + (week - 1) / 52)});
    device.player().press("Close");
    if (week % 12 != 0) continue;
    auto before = hubInFull();
    device.launch();
    // The card index history restarts at every launch; everything else must be unchanged.
    const auto strip = [](std::vector<std::string>& words) {
      const auto chart =
          std::ranges::find_if(words, [](const std::string& line) { return line.starts_with("Card index"); });
      words.erase(chart, std::ranges::find_if(chart, words.end(),
                                              [](const std::string& line) { return line.starts_with("["); }));
    };
    auto after = hubInFull();
    strip(before);
    strip(after);
    EXPECT_EQ(after, before);
  }
  const WorldState& world = device.world();
  EXPECT_EQ(world.yearNumber, 2028);
  EXPECT_EQ(world.weekNumber, 17);
  EXPECT_EQ(world.weekNumberForTracking, 121);
  EXPECT_EQ(world.ageCount, 39);
  EXPECT_EQ(world.totalEnergyMax, 103);           // with 5 for the answer to the review prompt
  EXPECT_EQ(world.activityTracker.size(), 240u);  // two lines per week: date and "nothing happened"
  EXPECT_EQ(world.activityTracker.front(), "APRIL 21, 2028");
}

TEST_F(FirstCareerJourney, AGameThatEndsInTheSummaryKeepsTheWeek) {
  device.endWeek();
  device.launch();
  EXPECT_EQ(device.world().weekNumber, 2);
  EXPECT_TRUE(device.world().activityTracker.empty());
  EXPECT_TRUE(device.world().trackRealEstateIndex.empty());
  device.player().expectSees({"JANUARY\n9, 2026"});
}

TEST_F(FirstCareerJourney, ARestartOpensTheForm) {
  device.playWeeks();
  device.player().follow({"Settings", "Restart?"});
  EXPECT_EQ(device.player().notice(), "Restart?");
  device.player().press("Keep playing");
  EXPECT_EQ(device.world().weekNumber, 2);
  device.player().follow({"Restart?", "Restart"});
  EXPECT_TRUE(device.world().activityTracker.empty());
  startCareer();
  device.player().expectSees({"JANUARY\n2, 2026"});
}

TEST_F(FirstCareerJourney, ReportsAFullDiskOnceAndLosesNothing) {
  Player& player = device.player();
  device.port.failAll(true);
  player.press("End Week");
  player.expectTold("💾 Not Saved 💾");
  player.press("Close");
  EXPECT_EQ(player.notice(), "");
  device.port.failAll(false);
  player.follow({"Work", "Talent"});
  device.launch();
  EXPECT_EQ(device.world().weekNumber, 2);
}

}  // namespace
}  // namespace tb
