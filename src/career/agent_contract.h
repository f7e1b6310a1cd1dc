#pragma once

// The contract with the agent: signing, its terms, and its end.

#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// The agent whose offer is the e-mail with this id; null when the e-mail is gone.
[[nodiscard]] const TalentAgent* offeringAgent(const WorldState& world, std::int64_t emailId);

// Why no agent can be signed: one is signed already.
[[nodiscard]] Refusal signingRefusal(const WorldState& world);

// Signs the agent of the e-mail for the offered years and removes the e-mail. Refused while another agent is
// signed; does nothing when the e-mail is gone.
Refusal signAgent(Game& game, std::int64_t emailId);

// What releasing the signed agent costs this week, in dollars: the penalty until the contract's last week,
// then 0; 0 without an agent.
[[nodiscard]] double releasePenalty(const WorldState& world);

// Ends the contract, at any time: pays the penalty, even into debt, and removes the agent and all e-mails
// about stakes, which came through the agent. Does nothing without an agent. A contract that ran out does not
// end by itself; the agent keeps working until released.
void releaseAgent(Game& game);

}  // namespace tb
