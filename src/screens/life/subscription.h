#pragma once

// How weekly options are bought and ended, on every screen that offers them.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The button that buys the option with this id, or ends it while it is paid for. Both ask first.
[[nodiscard]] view::Button subscriptionButton(const Game& game, std::int64_t id);

// A row that buys the option with this id.
[[nodiscard]] view::Row subscriptionRow(const Game& game, std::int64_t id, std::string detail);

// The button that ends it below a screen that the option opens.
[[nodiscard]] view::Button cancelSubscription(const Game& game, std::int64_t id);

}  // namespace tb
