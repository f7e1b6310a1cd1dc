#pragma once

#include "core/game.h"

namespace tb {

// A week of the two markets: each index takes a small uniform step and is kept inside its corridor; its
// history keeps the newest 48. Write their keys.
void moveRealEstateIndex(Game& game);
void moveCardIndex(Game& game);

}  // namespace tb
