#pragma once

// Submission for a role on the casting board.

#include <cstdint>

#include "career/casting_board.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t submissionEnergy = 20;

// Why the performer cannot submit: already submitted, a union role without membership or the reverse, or not
// enough energy.
[[nodiscard]] Refusal submissionRefusal(const WorldState& world, const CastingListing& listing);

// Adds the listing's project to the performer's list, or refuses.
Refusal submitToCastingListing(Game& game, const CastingListing& listing);

}  // namespace tb
