#pragma once

// Renewal of series and sagas, from the eleventh week after a release on. Decided by `imbdRating`: up to 4
// ends it; above that the chance grows with the rating.

#include "core/game.h"

namespace tb {

// Decides about all released series that may still be renewed. A new season is added as a booked project.
void renewSeries(Game& game);

// The same for films of a saga. A saga also ends after its last film in the catalogue.
void renewSaga(Game& game);

}  // namespace tb
