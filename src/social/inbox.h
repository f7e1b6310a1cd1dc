#pragma once

// The inbox.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Removes the e-mail with this id from `saveAllEmailList`; does nothing when there is none.
void removeEmail(Game& game, std::int64_t id);

}  // namespace tb
