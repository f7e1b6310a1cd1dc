#pragma once

#include "core/game.h"

namespace tb {

// Removes the performer's invitations that are more than 19 weeks old and all closed auditions. Runs when
// `weekNumber` is 25 or 50 and does nothing in other weeks.
//
// The result is also copied to `save`, which nothing reads.
void cleanUpAuditions(Game& game);

}  // namespace tb
