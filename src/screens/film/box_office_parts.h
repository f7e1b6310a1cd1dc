#pragma once

// Shared parts of the box office screens.

#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "(240% RETURN)"; empty without a budget.
[[nodiscard]] std::string returnText(double gross, double budget);

// A chart of a film's gross per week, starting with the opening. Values can be negative.
[[nodiscard]] view::Chart takingsChart(const Game& game, std::string title,
                                       const std::vector<double>& takings);

}  // namespace tb
