#pragma once

#include "core/game.h"

namespace tb {

// Raises `bestNetworth` to the whole part of `saveNetworth` and `bestBoxOffice` to `saveBoxOffice` when those
// are higher.
void updateBestFigures(Game& game);

}  // namespace tb
