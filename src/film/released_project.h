#pragma once

// What becomes of a wrapped project, week by week.

#include <cstddef>

#include "core/game.h"

namespace tb {

// One week of the project at `auditionIndex`, which is wrapped. In the week of its release: scores and fans,
// then the opening of a feature film or the premiere of a series. In the weeks after: the run in the cinemas
// with the payouts at its end, or the next episode. In any other week nothing. The clock shows the week that
// is ending.
//
// May change the film, the project's hype, `fanGainCarry`, the box office, the viewing figures and the
// payouts; writes the last four. The weekly step saves `saveAllAuditionList` and `saveAllFilmList`, and
// `activityTracker` with them, when all projects are done.
void advanceReleasedProject(Game& game, std::size_t auditionIndex);

}  // namespace tb
