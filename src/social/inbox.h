#pragma once

// The e-mails of a career.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Takes an e-mail that was answered out of `saveAllEmailList` and writes the list; does nothing when there is
// none with that id.
void removeEmail(Game& game, std::int64_t id);

}  // namespace tb
