#pragma once

// Networks bid for the reruns of titles that are still talked about.

#include "core/game.h"

namespace tb {

// When the summary opens, first of all: every film and series that came out 29 weeks ago or earlier and has
// no deal in force may draw a bid of one of the seven networks, the likelier the more popular it is; a
// popularity of 10 draws none, one above 100 draws one a week. A network bids for a title once until a deal
// has run out. Writes `saveAllSyndication` when there was a bid.
void takeSyndicationBids(Game& game);

}  // namespace tb
