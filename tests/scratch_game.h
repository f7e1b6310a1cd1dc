#pragma once

// A game whose store lasts as long as the test: what it writes stands in the store and goes nowhere.

#include <expected>
#include <span>
#include <string>
#include <vector>

#include "core/game.h"
#include "tests/scripted_random.h"

namespace tb::test {

class Nowhere : public StorePort {
 public:
  std::vector<StoredPiece> load() override { return {}; }
  std::expected<void, std::string> commit(std::span<const StoreChange>) override { return {}; }
};

struct ScratchGame {
  Nowhere port;
  SaveStore store{port};
  ScriptedRandom random;
  Game game{.store = store, .random = random};
};

}  // namespace tb::test
