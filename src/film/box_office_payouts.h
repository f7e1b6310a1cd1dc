#pragma once

// Payouts of stakes at the end of a film's run.

#include "core/game.h"

namespace tb {

// Records the performer's share of `gross` (dollars, all markets): equity, and royalties minus the agent's
// commission. Both are dated in the next week, whose summary counts them. Does nothing for a film without a
// stake.
void payStakes(Game& game, const Film& film, double gross);

}  // namespace tb
