#pragma once

// Withdrawal from a role.

#include "core/game.h"

namespace tb {

// Whether the performer can withdraw from a project: until it is wrapped.
[[nodiscard]] bool isWithdrawalOffered(const Audition& project);

// Removes the project from the list. Costs up to 1 % of the fans. Does nothing when the project does not
// exist or is wrapped.
void withdrawFromRole(Game& game, std::int64_t filmId);

}  // namespace tb
