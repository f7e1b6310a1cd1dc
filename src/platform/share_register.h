#pragma once

// Who owns the streaming company. The register is no record: it is counted anew from the records.

#include <cstdint>

#include "core/world_state.h"

namespace tb {

// The shares there are: the player's, those of everyone who was ever on the executive team, and those of the
// capital raises that found investors.
[[nodiscard]] std::int64_t totalPlatformShares(const WorldState& world);

// The player's fraction, 0 to 1; all of it while no share exists.
[[nodiscard]] double ownPlatformFraction(const WorldState& world);

}  // namespace tb
