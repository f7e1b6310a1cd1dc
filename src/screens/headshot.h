#pragma once

// The performer's picture. It is saved as image data; the pictures that the game offers are drawn from their
// name, so that the data is that name.

#include <string>

#include "core/world_state.h"
#include "screens/view.h"

namespace tb {

// The name of one of the pictures on offer, counted from 1.
[[nodiscard]] std::string headshotName(bool isMale, int number);

[[nodiscard]] Image headshotImage(const std::string& name);

// The name of the picture; empty before one is chosen, or when the data is no name.
[[nodiscard]] std::string headshotIn(const Image& image);

// The picture of that name at an age in years, 18 or more.
[[nodiscard]] view::Picture headshotPicture(const std::string& name, std::int64_t age);

// The performer as of today. Who chose no picture gets the first that the form has on offer.
[[nodiscard]] view::Picture performerPicture(const WorldState& world);

}  // namespace tb
