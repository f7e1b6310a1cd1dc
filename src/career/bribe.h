#pragma once

// A bribe to the casting director. It helps a submission to be answered and does not affect the audition.

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// Whether a bribe is possible for a project: once, while the submission is open.
[[nodiscard]] bool isBribeOffered(const Audition& project);

// Why no bribe is possible: not enough cash.
[[nodiscard]] Refusal bribeRefusal(const WorldState& world);

// Pays a bribe for a project. Costs `saveBribePrice` and doubles it for the rest of the career; the strength
// is drawn, 10 to 99. The notice says what it did, or that there is not enough cash. Nothing happens when no
// bribe is possible for the project.
std::optional<Notice> bribeCastingDirector(Game& game, std::int64_t filmId);

}  // namespace tb
