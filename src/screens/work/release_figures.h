#pragma once

// What a released title took, gathered for a screen.

#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// A feature film's weeks are dollars in all markets, the opening first; a series' are the viewers of its
// episodes.
struct ReleaseFigures {
  double gross = 0;  // dollars
  double budget = 0;
  std::vector<double> weeks;
};
[[nodiscard]] ReleaseFigures figuresOf(const WorldState& world, const Audition& project);

// The four figures of a feature film or a series.
[[nodiscard]] view::Tiles figureTiles(const Game& game, const Audition& project,
                                      const ReleaseFigures& figures);

// The run as a chart of bars.
[[nodiscard]] view::Chart figureChart(const Game& game, const Audition& project,
                                      const ReleaseFigures& figures);

}  // namespace tb
