#pragma once

// The weekly change of a title's popularity. With a chance of one in three its rating raises or lowers it;
// otherwise it falls a little.

#include "core/game.h"

namespace tb {

// Updates `currentPopularity` (0 to 100) and `lastWeekPopularity` of every released feature film and series
// with a popularity above 0, in the order of the list. A release's hype can put the popularity above 100; it
// is not cut to 100 while it falls. Runs when the clock already shows the new week.
void driftPopularity(Game& game);

}  // namespace tb
