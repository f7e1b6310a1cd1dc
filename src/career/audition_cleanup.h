#pragma once

#include "core/game.h"

namespace tb {

// Twice a year, when `weekNumber` is 25 or 50: forgets the performer's invitations that are more than 19
// weeks old and every closed audition. Does nothing in other weeks.
//
// The cleaned list is written under the key "save", which nothing reads, and reaches its own key only with
// the next step that writes it: a game that ends before that comes back with the old list.
void cleanUpAuditions(Game& game);

}  // namespace tb
