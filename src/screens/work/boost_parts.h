#pragma once

// The boost button of a project, for its page and for rows in lists.

#include <cstdint>

#include "career/boosts.h"
#include "core/game.h"
#include "screens/view.h"

namespace tb {

enum class BoostWords : std::uint8_t { full, brief };  // for a separate button, and for a button in a row

[[nodiscard]] view::Button boostButton(const WorldState& world, const Boost& offered, const Audition& project,
                                       BoostWords words);

}  // namespace tb
