#pragma once

// A word, and an envelope, for the casting director. It lifts a submission in the pile; the audition itself
// stays as it is.

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// Whether a project can be bribed for: while the submission waits, and once.
[[nodiscard]] bool isBribeOffered(const Audition& project);

// Why the performer cannot bribe anybody now: the cash is missing.
[[nodiscard]] Refusal bribeRefusal(const WorldState& world);

// Bribes for the project at `auditionIndex`, which must offer it. Costs `saveBribePrice` in cash and doubles
// it for the rest of the career; the strength is drawn, 10 to 99. Answers what it did, or that the cash is
// missing. Writes the cash, the price and the list.
[[nodiscard]] Notice bribeCastingDirector(Game& game, std::size_t auditionIndex);

}  // namespace tb
