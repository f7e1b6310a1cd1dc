#pragma once

// Love on the hub: the partner and how the two are doing, or the way to Latch.

#include "core/game.h"
#include "screens/view.h"

namespace tb {

[[nodiscard]] view::Section loveSection(const Game& game);

}  // namespace tb
