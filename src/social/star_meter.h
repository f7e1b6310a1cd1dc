#pragma once

// The star meter: the performer's place among all actors by the gross of their films.

#include "core/game.h"

namespace tb {

// In even weeks of the year, for a performer with a filmography: appends the rank, 1 (best) to 100,000, to
// `saveStarRankingMeter`, which keeps 52 entries, and raises `saveBoxOffice` to the gross of the principal
// parts. The first hundred places are shared with the leading stars.
void rankStar(Game& game);

}  // namespace tb
