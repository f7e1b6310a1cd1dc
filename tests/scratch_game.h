#pragma once

// A game whose store lasts as long as the test.

#include <gtest/gtest.h>
#include <string>

#include "core/game.h"
#include "core/save_store.h"
#include "tests/memory_port.h"
#include "tests/scripted_random.h"

namespace tb::test {

struct ScratchGame {
  // Chance is scripted draw by draw. For a whole week, whose steps may draw as they like, it is low unless a
  // test says otherwise.
  explicit ScratchGame(Unscripted unscripted = Unscripted::fails) : random(unscripted) {}

  MemoryPort port;
  SaveStore store{port};
  ScriptedRandom random;
  Game game{.store = store, .random = random};
  WorldState& world = game.world;

  // The newest line of the week's feed and of the log.
  void expectToldInBothLists(const std::string& line) const {
    ASSERT_FALSE(world.WeekFeed.empty() || world.activityTracker.empty()) << "nothing of " << line;
    EXPECT_EQ(world.WeekFeed.back(), line);
    EXPECT_EQ(world.activityTracker.front(), line);
  }
  void expectToldInTheLogAlone(const std::string& line) const {
    EXPECT_EQ(world.activityTracker, TextList{line});
    EXPECT_TRUE(world.WeekFeed.empty());
  }
  void expectNothingTold() const {
    EXPECT_TRUE(world.WeekFeed.empty());
    EXPECT_TRUE(world.activityTracker.empty());
  }
};

// A rule tried in a game of its own.
struct RuleTest : testing::Test, ScratchGame {
  using ScratchGame::ScratchGame;
};

}  // namespace tb::test
