#pragma once

// A week of every project that the performer is attached to.

#include "core/game.h"

namespace tb {

// Walks `saveAllAuditionList` once. A submission is answered, heard of no more or left waiting; an invitation
// is auditioned for in its week; a booking wraps in its week and becomes a film; what is wrapped lives its
// release and the weeks after it. A record that moves on waits there for the next week.
//
// Then the fans that titles brought are paid out, and the signed agent hears how the agency's projects went.
// Writes the auditions, the films, `totalFans`, `experience` and `activityTracker`, and the agents and what
// the releases touched when they changed. The clock shows the week that is ending.
void resolveAuditionsForWeek(Game& game);

}  // namespace tb
