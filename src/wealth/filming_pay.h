#pragma once

// What a finished shoot pays: the session fee with the buyout in the week after the wrap, and the residual
// checks of a commercial while it is on the air. Each becomes a record; the week's balance turns the records
// into cash.

#include "core/game.h"

namespace tb {

// Records everything that falls due in the week that the clock shows, net of guild dues (dollars), and adds
// the dues to `workDuesPaidSAG`. The fee of an own production is also told in the career's record. Writes
// `saveAllWeeklyEarnings`, `activityTracker` and `workDuesPaidSAG` when anything fell due, else nothing.
void payFilming(Game& game);

}  // namespace tb
