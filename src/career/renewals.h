#pragma once

// The next season of a series and the next film of a saga, ordered from the eleventh week after a release on.
// Both read `imbdRating`, the viewers' score: up to 4 ends it, and above that the more the likelier.

#include "core/game.h"

namespace tb {

// Looks at every released series of the performer's that may still be renewed. A new season is a project of
// its own and already booked. Writes the list, `filmId` and the log.
void renewSeries(Game& game);

// The same for the films of a saga, which ends when its catalogue has no further entry.
void renewSaga(Game& game);

}  // namespace tb
