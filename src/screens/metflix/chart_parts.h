#pragma once

// Parts of the chart's screens.

#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The poster of a chart's entry.
[[nodiscard]] view::Picture posterOf(const WorldState& world, const TopTen& entry);

// How the entry moved since last week: "up 3", "new".
[[nodiscard]] view::Place::Move moveOf(const TopTen& entry);
[[nodiscard]] std::string movedWords(const TopTen& entry);

// "1 week in the Top 10".
[[nodiscard]] std::string weeksWords(const TopTen& entry);

}  // namespace tb
