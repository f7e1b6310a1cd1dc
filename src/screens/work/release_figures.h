#pragma once

// Box office or viewing figures of a released title.

#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// A feature film's weeks are dollars in all markets, starting with the opening; a series' weeks are viewers
// per episode.
struct ReleaseFigures {
  double gross = 0;  // dollars
  double budget = 0;
  std::vector<double> weeks;
};
[[nodiscard]] ReleaseFigures figuresOf(const WorldState& world, const Audition& project);

// Tiles with the four main figures.
[[nodiscard]] view::Tiles figureTiles(const Game& game, const Audition& project,
                                      const ReleaseFigures& figures);

// A bar chart of the weeks.
[[nodiscard]] view::Chart figureChart(const Game& game, const Audition& project,
                                      const ReleaseFigures& figures);

}  // namespace tb
