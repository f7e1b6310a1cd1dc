#pragma once

// The one button by which the performer works on a project, on its page and in the lists that it stands in.

#include <cstdint>

#include "career/boosts.h"
#include "core/game.h"
#include "screens/view.h"

namespace tb {

enum class BoostWords : std::uint8_t { full, brief };  // for a button of its own, and for one in a row

[[nodiscard]] view::Button boostButton(const WorldState& world, const Boost& offered, const Audition& project,
                                       BoostWords words);

}  // namespace tb
