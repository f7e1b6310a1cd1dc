#pragma once

// The contents of the hub's five tabs.

#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

[[nodiscard]] std::vector<view::Node> homeTab(const Game& game);
[[nodiscard]] std::vector<view::Node> workTab(const Game& game);
[[nodiscard]] std::vector<view::Node> socialTab(const Game& game);
[[nodiscard]] std::vector<view::Node> lifeTab(const Game& game);
[[nodiscard]] std::vector<view::Node> wealthTab(const Game& game);

}  // namespace tb
