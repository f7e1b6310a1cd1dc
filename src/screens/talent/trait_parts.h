#pragma once

// Trait parts shared by the talent screen and the hub.

#include <cstddef>
#include <string>

#include "career/traits.h"
#include "screens/view.h"

namespace tb {

// The trait's name as "Charisma": some screen readers spell out names in capitals.
[[nodiscard]] std::string spokenName(const Trait& trait);

// The button that buys the next point of the trait with this index in `traits`.
[[nodiscard]] view::Button trainButton(const WorldState& world, std::size_t index);

}  // namespace tb
