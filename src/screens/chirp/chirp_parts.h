#pragma once

// Parts of the screens of Chirp.

#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// A post as it is shown.
[[nodiscard]] view::Post postNode(const Game& game, const Chirp& chirp);

// "now", "5m", "3h", "2d"; the game's date for an older post that is kept.
[[nodiscard]] std::string postedWhen(const Game& game, const Chirp& chirp);

}  // namespace tb
