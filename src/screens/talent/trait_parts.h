#pragma once

// What the talent screen and the hub share of the five traits.

#include <cstddef>
#include <string>

#include "career/traits.h"
#include "screens/view.h"

namespace tb {

// "Charisma": a name in capitals is spelled out by some screen readers.
[[nodiscard]] std::string spokenName(const Trait& trait);

// Buys the next point of the trait at that place in `traits`.
[[nodiscard]] view::Button trainButton(const WorldState& world, std::size_t index);

}  // namespace tb
