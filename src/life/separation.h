#pragma once

// The end of a relationship. The partner leaves in partnerLeaves(), which takes half of the cash in a
// divorce; the player leaves in life/break_up.h.

#include <cstdint>
#include <string>

#include "banks/banks.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

// Ends every open relationship with these last words, and empties the history.
void endRelationship(WorldState& world, const std::string& line);

enum class DepartureReason : std::uint8_t { messages, neglect, money };

// A partner who left.
struct Separation {
  Notice notice;    // what the player is told
  Matches partner;  // as they were before
};

// The partner ends the relationship with last words from the bank. The energy maximum falls by the bonus and
// a point, and by another one in a divorce, in which half of the cash is lost without a prenup. There must be
// a partner.
[[nodiscard]] Separation partnerLeaves(Game& game, Bank lastWords, DepartureReason reason);

}  // namespace tb
