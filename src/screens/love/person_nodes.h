#pragma once

// A person of Latch as nodes.

#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// Chemistry, energy, work and interests.
[[nodiscard]] std::vector<view::Node> personNodes(const Game& game, const Matches& person);

// The first three interests, the first word of each with a capital: "Thrift shopping, Hot yoga".
[[nodiscard]] std::string interestWords(const Matches& person);

}  // namespace tb
