#pragma once

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The fans in brief, with a small chart; leads to the whole one.
[[nodiscard]] view::Card fanbaseView(const Game& game);

// The sentence for the size of the audience.
[[nodiscard]] const std::string& fansSentence(std::int64_t fans);

// The chart of `trackFans`.
[[nodiscard]] view::Chart fansChart(const Game& game);

}  // namespace tb
