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
    std::vector<Damage> damages;
    for (const Variable& variable : variables()) damages.push_back(loadVariable(game, variable));
    for (const Variable& variable : variables()) {
      if (!variable.range.parallel.empty()) damages.push_back(cutParallel(game, variable));
    }
    damage = describe(damages).value_or("");
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
  std::string damage;  // of the latest load
  std::string log;     // of the latest load
};

}  // namespace tb::test
