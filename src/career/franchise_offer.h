#pragma once

// The lead of a saga, offered by e-mail through the agent. Taking it books the saga's first film; later films
// follow by renewal.

#include <cstdint>
#include <string>

#include "core/game.h"

namespace tb {

// The first film that an e-mail offers; null when the e-mail is gone, when no agent is signed, and before
// drawFranchiseOffer().
[[nodiscard]] const Audition* franchiseOffer(const WorldState& world, std::int64_t emailId);

// Draws the saga of an e-mail when it is first opened: one that the performer has no part in yet, while there
// is one. Its budget is up to the agent's largest. Does nothing when it is already drawn or there is no
// offer.
void drawFranchiseOffer(Game& game, std::int64_t emailId);

// Books the first film, on a schedule that starts now, and removes the e-mail. Does nothing without an offer.
// Returns the line for the log; empty when nothing was done.
[[nodiscard]] std::string acceptFranchise(Game& game, std::int64_t emailId);

}  // namespace tb
