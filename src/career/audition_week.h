#pragma once

// The weekly step of all projects.

#include "core/game.h"

namespace tb {

// Goes through `saveAllAuditionList` once. A submission is answered, dropped or stays open; an audition takes
// place in its week; a booked project wraps in its week and becomes a film; a wrapped project goes through
// its release and run. A record moves at most one stage per week.
//
// Then adds the titles' fans, and updates the relationship with the signed agent by the outcome of the
// agency's projects. The clock shows the week that is ending.
void resolveAuditionsForWeek(Game& game);

}  // namespace tb
