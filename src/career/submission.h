#pragma once

// Submitting for a role of the casting board.

#include <cstdint>

#include "career/casting_board.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t submissionEnergy = 20;

// Puts the project of a listing on the performer's list. Refuses a role submitted for already, union work to
// a performer outside the guild and other work to a member, and without the energy. Writes the energy,
// `filmId`, the list and the log.
Refusal submitToCastingListing(Game& game, const CastingListing& listing);

}  // namespace tb
