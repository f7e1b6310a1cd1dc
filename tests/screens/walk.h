#pragma once

// Every screen of a career that presses lead to, as text.

#include <string>

#include "tests/journeys/device.h"

namespace tb::test {

// Opens the stored career again and again, presses its way to every screen breadth first, and writes down
// each page with what its presses do. `random` is the device's source of chance; it is seeded anew before
// each press, so that a screen draws the same whatever was on show before it.
//
// Of cards and list items that differ in names and figures only, the first one stands for all. Notices are
// written down and not answered, texts are not typed, sliders are not moved.
[[nodiscard]] std::string walkAllScreens(Device& device, SeededRandom& random);

}  // namespace tb::test
