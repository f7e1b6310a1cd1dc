#pragma once

// What the last week of a film's run brings to the holders of a stake.

#include "core/game.h"

namespace tb {

// Records the performer's share of `gross` (dollars, all markets): equity, and royalties less the agent's
// part. Both are dated in the week that begins, in which the summary counts them. Nothing for a film without
// a stake. Writes `saveAllEquityPayouts`, `saveAllRoyaltyPayouts` and `saveAllTalentAgents`, each when it
// changed.
void payStakes(Game& game, const Film& film, double gross);

}  // namespace tb
