#pragma once

#include "core/game.h"
#include "screens/view.h"
#include "week/summary.h"

namespace tb {

// An event of the week as a row with its title, what it brings, and a button with what it takes. After its
// use, what came of it.
[[nodiscard]] view::Node weekEventRow(const Game& game, const OfferedEvent& offered, Operation press);

}  // namespace tb
