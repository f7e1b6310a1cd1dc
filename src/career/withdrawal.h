#pragma once

// Walking away from a role.

#include "core/game.h"

namespace tb {

// Whether a project can still be left: until it is wrapped.
[[nodiscard]] bool isWithdrawalOffered(const Audition& project);

// Takes the project with that id off the list. Costs up to a hundredth of the fans, whether or not anybody
// knew of the role. Does nothing when the project is not there or is wrapped. Writes the list, `totalFans`,
// `trackFans` and the log.
void withdrawFromRole(Game& game, std::int64_t filmId);

}  // namespace tb
