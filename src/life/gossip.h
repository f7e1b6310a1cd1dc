#pragma once

// What the town says about the player's relationship.

#include <string>

#include "core/game.h"

namespace tb {

// A line of gossip about the couple; Hollywood talks from 250,001 fans on.
[[nodiscard]] std::string drawGossip(Game& game, const Matches& partner);

}  // namespace tb
