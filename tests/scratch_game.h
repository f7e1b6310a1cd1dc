#pragma once

// A game with a store in memory.

#include <gtest/gtest.h>
#include <string>

#include "core/game.h"
#include "core/save_store.h"
#include "tests/memory_port.h"
#include "tests/scripted_random.h"

namespace tb::test {

struct ScratchGame {
  // By default unscripted draws fail. For tests of a whole week, `Unscripted::low` gives low values instead.
  explicit ScratchGame(Unscripted unscripted = Unscripted::fails) : random(unscripted) {}

  MemoryPort port;
  SaveStore store{port};
  ScriptedRandom random;
  Game game{.store = store, .random = random};
  WorldState& world = game.world;

  // Expects the line as the newest one of the feed and of the log.
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

// Base class for tests of a rule.
struct RuleTest : testing::Test, ScratchGame {
  using ScratchGame::ScratchGame;
};

}  // namespace tb::test
