#pragma once

// A stake instead of pay: an e-mail, which comes through the agent, offers a role in a project that has no
// money for a fee. The performer names a percent of its gross; the more, the less likely the team agrees.

#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t stakeNegotiationEnergy = 25;
inline constexpr std::int64_t mostStakeSteps = 10;  // above the percent on offer

// The project that an e-mail offers, with the percent on offer as its `royalty`; null when the e-mail is
// gone, when nobody is signed who could close the deal, and before makeStakeOffer().
[[nodiscard]] const Audition* stakeOffer(const WorldState& world, std::int64_t emailId);

// Draws the project and the percent of an e-mail that is opened for the first time; the percent lies between
// 0.25 and the signed agent's `royaltyBonus`. Nothing when it was drawn before, or nothing is offered.
void makeStakeOffer(Game& game, std::int64_t emailId);

// The percent asked for `steps` (0 to mostStakeSteps) above the one on offer: each adds a tenth of that.
[[nodiscard]] double percentAsked(const Audition& offer, std::int64_t steps);

// The chance in percent that the team agrees to it, the agent's bonus not counted: 100, and 10 less a step.
[[nodiscard]] std::int64_t chanceOfNegotiation(std::int64_t steps);

// What the signed agent adds to that chance, in points; 0 without one.
[[nodiscard]] std::int64_t negotiationBonus(const WorldState& world);

struct StakeAnswer {
  Notice notice;
  bool isFinal;  // the e-mail is answered, one way or the other
};

// Why nothing can be negotiated now: the energy is missing.
[[nodiscard]] Refusal stakeRefusal(const WorldState& world);

// Asks for that percent, once. On success the role is booked without fee, buyout or residual, to be shot in
// the weeks that come. Without the energy nothing happens. The e-mail has to be on offer. Writes the energy,
// the e-mails and, on success, `filmId`, the list and the log.
[[nodiscard]] StakeAnswer negotiateStake(Game& game, std::int64_t emailId, std::int64_t steps);

}  // namespace tb
