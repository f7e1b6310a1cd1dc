#pragma once

// A stake instead of pay: an e-mail from the agent offers a role without a fee. The performer asks for a
// percentage of the gross; a higher one is less likely to be accepted.

#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t stakeNegotiationEnergy = 25;
inline constexpr std::int64_t maxStakeSteps = 10;  // above the offered percentage

// The project that an e-mail offers, with the offered percentage as its `royalty`; null when the e-mail is
// gone, when no agent is signed, and before drawStakeOffer().
[[nodiscard]] const Audition* stakeOffer(const WorldState& world, std::int64_t emailId);

// Draws the project and the percentage of an e-mail when it is first opened; the percentage is between 0.25
// and the signed agent's `royaltyBonus`. Does nothing when it is already drawn or there is no offer.
void drawStakeOffer(Game& game, std::int64_t emailId);

// The percentage that is `steps` (0 to maxStakeSteps) above the offered one; each step adds a tenth of it.
[[nodiscard]] double percentAsked(const Audition& offer, std::int64_t steps);

// The chance in percent that the team accepts, without the agent's bonus: 100 minus 10 per step.
[[nodiscard]] std::int64_t chanceOfNegotiation(std::int64_t steps);

// The signed agent's bonus on that chance, in points; 0 without an agent.
[[nodiscard]] std::int64_t negotiationBonus(const WorldState& world);

struct StakeAnswer {
  Notice notice;
  bool isFinal;  // the offer is closed
};

// Why the offer cannot be negotiated: not enough energy.
[[nodiscard]] Refusal stakeRefusal(const WorldState& world);

// Asks for the percentage, once. On success the role is booked without fee, buyout or residual. Without
// enough energy nothing changes. stakeOffer() must not be null.
[[nodiscard]] StakeAnswer negotiateStake(Game& game, std::int64_t emailId, std::int64_t steps);

}  // namespace tb
