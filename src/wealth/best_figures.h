#pragma once

#include "core/game.h"

namespace tb {

// Keeps the career's best: `bestNetworth` rises to the whole part of `saveNetworth` and `bestBoxOffice` to
// `saveBoxOffice`, when those are higher. Writes both.
void keepBestFigures(Game& game);

}  // namespace tb
