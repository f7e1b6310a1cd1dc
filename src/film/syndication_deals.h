#pragma once

// The reruns of a title on a network: which bid wins, what the deal brings week by week, and how it ends.

#include "core/game.h"

namespace tb {

// When the summary opens, after the bids: a title that has waited four weeks since its first bid and has two
// or more goes to any of the bidders, for the price and the years that it named; the news makes the title
// talked about and pays whoever holds a stake. A deal in force counts its weeks down, the one in which it was
// struck included: a residual every twelfth week, and viewers while the reruns are fresh. In the week after
// its last a deal ends and the title is free for bids again.
//
// Writes `saveAllSyndication` and, each when it changed, the films, `saveAllRatings`, the payouts,
// `saveAllWeeklyEarnings`, `workDuesPaidSAG`, the agents and `activityTracker`.
void advanceSyndicationDeals(Game& game);

}  // namespace tb
