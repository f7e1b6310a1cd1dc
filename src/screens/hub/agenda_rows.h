#pragma once

// What is next, as rows that lead to it and hold what can be done about it.

#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The steps of the first week, or what is due, what there is room for and what runs by itself.
[[nodiscard]] view::Section thisWeek(const Game& game);

// What the last week brought; nothing in a week that brought nothing.
[[nodiscard]] std::vector<view::Node> lastWeek(const Game& game);

// What matters on each of the other tabs now; nothing where nothing does.
[[nodiscard]] std::vector<view::Node> nextAtWork(const Game& game);
[[nodiscard]] std::vector<view::Node> nextInPublic(const Game& game);
[[nodiscard]] std::vector<view::Node> nextInLife(const Game& game);
[[nodiscard]] std::vector<view::Node> nextForMoney(const Game& game);

}  // namespace tb
