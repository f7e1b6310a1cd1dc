#pragma once

// Weekly options that open a screen.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// A row that buys the option with this id.
[[nodiscard]] view::Row subscriptionRow(const Game& game, std::int64_t id, std::string detail);

// The button that ends it, after a question.
[[nodiscard]] view::Button cancelSubscription(const Game& game, std::int64_t id);

}  // namespace tb
