#include <gtest/gtest.h>

#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

// One device: its storage outlives the game that runs on it.
struct Device {
  test::MemoryPort port;
  test::SeededRandom random{2026};

  struct Running {
    explicit Running(Device& device) : store(device.port), app(store, device.random) {}
    SaveStore store;
    App app;
    test::Player player{app};
  };
  [[nodiscard]] std::unique_ptr<Running> launch() { return std::make_unique<Running>(*this); }
};

void startCareer(test::Player& player) {
  ASSERT_EQ(player.title(), "A star is cast");
  player.press("Start my career");
  EXPECT_EQ(player.notice(), "⚠️ Name Needed ⚠️");
  player.press("OK");
  player.type("Stage name", "  Ada {title} Vale ");
  player.slide("Age", 37);
  player.press("Female");
  player.press("Headshot 2");
  player.type("Biography", "Two left feet, one good side.");
  player.press("Start my career");
}

// The hub as a player sees it, tab by tab.
std::vector<std::string> hubInFull(test::Player& player) {
  std::vector<std::string> all;
  for (const char* tab : {"Work", "Social", "Life", "Wealth", "Home"}) {
    player.press(tab);
    const auto words = player.words();
    all.insert(all.end(), words.begin(), words.end());
  }
  return all;
}

TEST(FirstCareer, AStrangerStartsTrainsAndFindsEverythingAsItWas) {
  Device device;
  auto game = device.launch();
  startCareer(game->player);
  EXPECT_EQ(game->player.title(), "Ada {title} Vale");
  EXPECT_TRUE(game->player.sees("JANUARY\n2, 2026"));
  EXPECT_EQ(game->app.game().world.birthYear, 2026 - 37);

  game->player.press("Work");
  game->player.press("Talent");
  while (game->player.notice().empty())
    game->player.press("Train to " + std::to_string(game->app.game().world.talentTraitCost1));
  EXPECT_EQ(game->player.notice(), "⚡️ Not Enough Energy ⚡️");
  game->player.press("OK");
  game->player.press("Back");
  game->player.press("Acting Classes");
  game->player.press("Sign up");
  EXPECT_EQ(game->player.notice(), "💰 Not Enough Cash 💰");
  game->player.press("OK");
  game->player.press("Back");
  game->player.press("The Backstage");
  game->player.press("Actor's Guild");
  game->player.press("Join");
  EXPECT_EQ(game->player.notice(), "❌ Not Eligible ❌");
  game->player.press("OK");
  game->player.press("Back");
  game->player.press("Back");

  const auto before = hubInFull(game->player);
  game.reset();
  game = device.launch();
  EXPECT_EQ(hubInFull(game->player), before);
}

TEST(FirstCareer, LivesForYearsAndComesBackTheSameInAnyWeek) {
  Device device;
  auto game = device.launch();
  startCareer(game->player);
  for (int week = 1; week <= 120; ++week) {
    game->player.press("End Week");
    ASSERT_EQ(game->player.title(), "REVIEW");
    EXPECT_TRUE(game->player.sees("Week " + std::to_string((week - 1) % 52 + 1) + " of " +
                                  std::to_string(2026 + (week - 1) / 52)));
    game->player.press("Close");
    auto before = hubInFull(game->player);
    if (week % 12 != 0) continue;
    game.reset();
    game = device.launch();
    // The card index starts its history anew at every launch; all else is as it was.
    const auto strip = [](std::vector<std::string>& words) {
      const auto chart = std::ranges::find(words, "Card index");
      const auto end = std::ranges::find_if(chart, words.end(), [](auto& word) { return word == "Home"; });
      words.erase(chart, end);
    };
    auto after = hubInFull(game->player);
    strip(before);
    strip(after);
    EXPECT_EQ(after, before);
  }
  const WorldState& world = game->app.game().world;
  EXPECT_EQ(world.yearNumber, 2028);
  EXPECT_EQ(world.weekNumber, 17);
  EXPECT_EQ(world.weekNumberForTracking, 121);
  EXPECT_EQ(world.ageCount, 39);
  EXPECT_EQ(world.totalEnergyMax, 98);
  EXPECT_EQ(world.activityTracker.size(), 240u);  // each week its date and that nothing happened
  EXPECT_EQ(world.activityTracker.front(), "APRIL 21, 2028");
}

TEST(FirstCareer, AGameCutShortInItsSummaryComesBackWithTheWeekPlayed) {
  Device device;
  auto game = device.launch();
  startCareer(game->player);
  game->player.press("End Week");
  game.reset();
  game = device.launch();
  EXPECT_EQ(game->app.game().world.weekNumber, 2);
  EXPECT_TRUE(game->app.game().world.activityTracker.empty());
  EXPECT_TRUE(game->app.game().world.trackRealEstateIndex.empty());
  EXPECT_TRUE(game->player.sees("JANUARY\n9, 2026"));
}

TEST(FirstCareer, ARestartLeadsBackToTheForm) {
  Device device;
  auto game = device.launch();
  startCareer(game->player);
  game->player.press("End Week");
  game->player.press("Close");
  game->player.press("Settings");
  game->player.press("Restart?");
  EXPECT_EQ(game->player.notice(), "Restart?");
  game->player.press("Keep playing");
  EXPECT_EQ(game->app.game().world.weekNumber, 2);
  game->player.press("Restart?");
  game->player.press("Restart");
  EXPECT_EQ(game->player.title(), "A star is cast");
  EXPECT_TRUE(game->app.game().world.activityTracker.empty());
  startCareer(game->player);
  EXPECT_TRUE(game->player.sees("JANUARY\n2, 2026"));
}

TEST(FirstCareer, AFullDiskIsToldOnceAndNothingIsLost) {
  Device device;
  auto game = device.launch();
  startCareer(game->player);
  device.port.failAll(true);
  game->player.press("End Week");
  EXPECT_EQ(game->player.notice(), "💾 Not Saved 💾");
  game->player.press("OK");
  game->player.press("Close");
  EXPECT_EQ(game->player.notice(), "");
  device.port.failAll(false);
  game->player.press("Work");
  game->player.press("Talent");
  const auto cash = game->app.game().world.weekNumber;
  game.reset();
  game = device.launch();
  EXPECT_EQ(game->app.game().world.weekNumber, cash);
}

}  // namespace
}  // namespace tb
