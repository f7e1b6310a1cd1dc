#pragma once

// How the screens of the box office write its figures.

#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "(240% RETURN)"; empty without a budget.
[[nodiscard]] std::string returnText(double gross, double budget);

// A film's takings: the opening, then week by week. The last weeks of a loser can be below 0.
[[nodiscard]] view::Chart takingsChart(const Game& game, std::string title,
                                       const std::vector<double>& takings);

}  // namespace tb
