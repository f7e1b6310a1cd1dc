#pragma once

// The relationship's weekly step: births, the decay of the meter, gossip, and a partner who had enough.

#include <optional>

#include "core/game.h"
#include "life/separation.h"

namespace tb {

// One step. It runs several times a week. Returns the separation when the partner left. For a single player
// it only keeps the children.
[[nodiscard]] std::optional<Separation> relationshipWeekStep(Game& game);

}  // namespace tb
