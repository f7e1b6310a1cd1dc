#pragma once

// What becomes of a title's popularity after its release: one week in three it is judged anew, and a good
// rating lifts it; in the other weeks a little of it is forgotten.

#include "core/game.h"

namespace tb {

// One week of every feature film and series that is out and still has some popularity, the newest wrap first.
// A title that fell to 0 is never looked at again. Changes `currentPopularity` (0 to 100; what the hype of a
// release put above 100 stays there while it falls) and `lastWeekPopularity`, and writes `saveAllFilmList`.
// The clock already shows the new week.
void driftPopularity(Game& game);

}  // namespace tb
