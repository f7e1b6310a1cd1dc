#pragma once

// Submitting for a role of the casting board.

#include <cstdint>

#include "career/casting_board.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t submissionEnergy = 20;

// Why the performer cannot submit now: the role was submitted for already, it is union work and the performer
// outside the guild, or the other way round, or the energy is missing.
[[nodiscard]] Refusal submissionRefusal(const WorldState& world, const CastingListing& listing);

// Puts the project of a listing on the performer's list, or refuses. Writes the energy, `filmId`, the list
// and the log.
Refusal submitToCastingListing(Game& game, const CastingListing& listing);

}  // namespace tb
