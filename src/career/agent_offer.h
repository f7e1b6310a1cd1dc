#pragma once

// An agent's offer to represent a working guild member, by e-mail.

#include <cstddef>

#include "core/game.h"

namespace tb {

// Booked principal roles without which no agent writes.
inline constexpr std::size_t agentRoles = 5;

// Every tenth week of the year: an agent may write to a guild member with five booked principal roles. The
// chance grows with experience and talent. Adds the agent to the front of `saveAllTalentAgents`, with terms
// by the performer's talent, and an e-mail to the inbox.
void agentOfferStep(Game& game);

}  // namespace tb
