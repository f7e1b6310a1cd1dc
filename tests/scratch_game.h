#pragma once

// A game whose store lasts as long as the test.

#include "core/game.h"
#include "tests/memory_port.h"
#include "tests/scripted_random.h"

namespace tb::test {

struct ScratchGame {
  MemoryPort port;
  SaveStore store{port};
  ScriptedRandom random;
  Game game{.store = store, .random = random};
};

}  // namespace tb::test
