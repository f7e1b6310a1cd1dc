#pragma once

// The first e-mails of a career.

#include "core/world_state.h"

namespace tb {

// Empties the inbox and puts the four welcome e-mails in it, dated this week. Two of them have the gift's id,
// so claiming the gift removes both.
void sendWelcomeMail(WorldState& world);

}  // namespace tb
