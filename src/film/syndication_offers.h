#pragma once

// Networks' bids for the reruns of popular titles.

#include "core/game.h"

namespace tb {

// The first step when the summary opens. Every film and series that was released 29 or more weeks ago and has
// no active deal may get a bid by one of the seven networks. The chance grows with its popularity: none up to
// 10, one bid per week above 100. A network bids for a title once until a deal has ended.
void drawSyndicationBids(Game& game);

}  // namespace tb
