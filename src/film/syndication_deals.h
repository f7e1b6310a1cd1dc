#pragma once

// Syndication deals: which bid wins, the weekly income of a deal, and its end.

#include "core/game.h"

namespace tb {

// Runs when the summary opens, after drawSyndicationBids(). A title with two or more bids, the first of them
// at least four weeks old, is sold to a random bidder for its price and term; this raises its popularity and
// pays stakes. An active deal counts down its weeks, starting in the week it was closed: it pays a residual
// every twelfth week and adds viewers at first. In the week after its last the deal ends, and the title can
// get bids again.
void advanceSyndicationDeals(Game& game);

}  // namespace tb
