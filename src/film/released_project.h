#pragma once

// The weekly step of a wrapped project.

#include <cstddef>

#include "core/game.h"

namespace tb {

// Runs a week of a wrapped project. In the week of its release: scores, fans, and the opening of a feature
// film or the premiere of a series. In the weeks of its run: box office with payouts at the end, or the next
// episode. Does nothing in other weeks. The clock shows the week that is ending.
void advanceReleasedProject(Game& game, const Audition& project);

}  // namespace tb
