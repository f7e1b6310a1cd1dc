#pragma once

#include <cstddef>
#include <vector>

#include "core/game.h"

namespace tb {

// The indexes in `saveAllAuditionList` of the principal roles that the performer was booked for. The industry
// writes to performers with enough of them.
[[nodiscard]] std::vector<std::size_t> provenRoles(const WorldState& world);

}  // namespace tb
