#pragma once

#include "core/game.h"

namespace tb {

// Weekly change of the two market indexes: a small uniform step within limits. Their histories keep the
// newest 48 values.
void moveRealEstateIndex(Game& game);
void moveCardIndex(Game& game);

}  // namespace tb
