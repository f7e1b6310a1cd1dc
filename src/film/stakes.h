#pragma once

// What a stake in a title is worth when the title brings in money: a producer's or an investor's equity, and
// an actor's royalty, of which the agent takes a part.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Money that a title brought in: how much, where from, and the week in which the summary counts the shares.
struct Proceeds {
  double gross = 0;  // dollars
  std::int64_t typeOfPayment = payoutSource::boxOffice;
  std::int64_t weekNumberForTracking = 0;
};

// A royalty as it falls due, before an agent's part, in dollars. It is told to the player so.
[[nodiscard]] double royaltyOn(const Film& film, double gross);

// The records of the shares, not yet kept. A film without that stake has a share of 0. `commission` is the
// agent's part of the royalty, a fraction.
[[nodiscard]] EquityPayout equityShare(const WorldState& world, const Film& film, const Proceeds& proceeds);
[[nodiscard]] RoyaltyPayout royaltyShare(const WorldState& world, const Film& film, const Proceeds& proceeds,
                                         double commission);

// Keeps a record, a royalty's agent being credited. Writes the list, and `saveAllTalentAgents` with
// royalties.
void keepPayout(Game& game, EquityPayout payout);
void keepPayout(Game& game, RoyaltyPayout payout);

// Adds what the signed agent took of a payment, in dollars, to the agent's earnings; nothing without an
// agent. Writes `saveAllTalentAgents`.
void creditAgent(Game& game, double commission);

}  // namespace tb
