#pragma once

// The agenda as rows, which open the item's screen and have its button.

#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The steps of the first week; later the items that are due, affordable or running.
[[nodiscard]] view::Section thisWeek(const Game& game);

// Last week's outcomes; empty when there are none.
[[nodiscard]] std::vector<view::Node> lastWeek(const Game& game);

// Agenda rows for the other tabs; empty when there are none.
[[nodiscard]] std::vector<view::Node> nextAtWork(const Game& game);
[[nodiscard]] std::vector<view::Node> nextInPublic(const Game& game);
[[nodiscard]] std::vector<view::Node> nextInLife(const Game& game);
[[nodiscard]] std::vector<view::Node> nextForMoney(const Game& game);

}  // namespace tb
