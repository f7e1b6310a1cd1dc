#pragma once

// A launch of the game on stored data.

#include <gtest/gtest.h>
#include <string>

#include "core/save.h"
#include "tests/memory_port.h"
#include "tests/scripted_random.h"

namespace tb::test {

// Loads every variable, including those that the game does not read at its start.
struct Launch {
  explicit Launch(MemoryPort& port) : store(port) { load(); }

  void load() {
    testing::internal::CaptureStderr();
    for (const Variable& variable : variables()) loadVariable(game, variable);
    log = testing::internal::GetCapturedStderr();
  }
  void save() {
    saveChanges(game);
    ASSERT_TRUE(store.commit());
  }

  SaveStore store;
  ScriptedRandom random;
  Game game{.store = store, .random = random};
  WorldState& world = game.world;
  std::string log;  // of the latest load
};

}  // namespace tb::test
