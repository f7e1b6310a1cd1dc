#pragma once

// The performer's picture. It is saved as image data; the pictures that the game offers are drawn from their
// name, so that the data is that name.

#include <string>

#include "core/world_state.h"

namespace tb {

// The name of one of the pictures on offer, counted from 1.
[[nodiscard]] std::string headshotName(bool isMale, int number);

[[nodiscard]] Image headshotImage(const std::string& name);

// The name of the chosen picture; empty before one is chosen, or when the data is no name.
[[nodiscard]] std::string chosenHeadshot(const WorldState& world);

}  // namespace tb
