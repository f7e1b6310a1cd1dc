#pragma once

// Ownership of the streaming company, computed from the records.

#include <cstdint>

#include "core/world_state.h"

namespace tb {

// The number of shares: the player's, those of current and former executives, and those of completed capital
// raises.
[[nodiscard]] std::int64_t totalPlatformShares(const WorldState& world);

// The player's fraction, 0 to 1; 1 when there are no shares.
[[nodiscard]] double ownPlatformFraction(const WorldState& world);

}  // namespace tb
