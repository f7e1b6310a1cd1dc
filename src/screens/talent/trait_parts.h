#pragma once

// Trait parts shared by the talent screen and the hub.

#include <cstddef>

#include "career/traits.h"
#include "screens/view.h"

namespace tb {

// The button that buys the next point of the trait with this index in `traits`.
[[nodiscard]] view::Button trainButton(const WorldState& world, std::size_t index);

}  // namespace tb
