#pragma once

// The performer's share of a title's income: equity as producer or investor, and royalties as an actor, minus
// the agent's commission.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Income of a title: amount, source, and the week whose summary counts the shares.
struct Proceeds {
  double gross = 0;  // dollars
  std::int64_t typeOfPayment = payoutSource::boxOffice;
  std::int64_t weekNumberForTracking = 0;
};

// A royalty in dollars before the agent's commission, as the log shows it.
[[nodiscard]] double royaltyOn(const Film& film, double gross);

// Computes the payout records without saving them. The share is 0 for a film without that stake. `commission`
// is the agent's fraction of the royalty.
[[nodiscard]] EquityPayout equityShare(const WorldState& world, const Film& film, const Proceeds& proceeds);
[[nodiscard]] RoyaltyPayout royaltyShare(const WorldState& world, const Film& film, const Proceeds& proceeds,
                                         double commission);

// Adds a payout record to its list, and credits the agent for a royalty.
void recordPayout(Game& game, EquityPayout payout);
void recordPayout(Game& game, RoyaltyPayout payout);

// Adds `commission` (dollars) to the signed agent's earnings; does nothing without an agent.
void creditAgent(Game& game, double commission);

}  // namespace tb
