#pragma once

// The texts of all screens of a career that presses can reach.

#include <string>

#include "tests/journeys/device.h"

namespace tb::test {

// Visits every screen breadth first and records each page and the effects of its presses. `random` is the
// device's generator; it is reseeded before each press, so that a screen does not depend on earlier ones.
//
// Of cards and list items that differ only in names and figures, the first one is pressed. Notices are
// recorded but not answered, texts are not typed, sliders are not moved.
[[nodiscard]] std::string walkAllScreens(Device& device, SeededRandom& random);

}  // namespace tb::test
