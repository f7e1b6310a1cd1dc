#pragma once

// The performer's picture. The save format holds image data; the game's pictures are drawn from a name, so
// the data is that name.

#include <string>

#include "core/world_state.h"
#include "screens/view.h"

namespace tb {

// The name of a picture, numbered from 1.
[[nodiscard]] std::string headshotName(bool isMale, int number);

[[nodiscard]] Image headshotImage(const std::string& name);

// The picture's name in the image data; empty when there is none.
[[nodiscard]] std::string headshotIn(const Image& image);

// The picture with that name at an age in years (18 and up).
[[nodiscard]] view::Picture headshotPicture(const std::string& name, std::int64_t age);

// The performer's picture at the current age; the form's first picture if none was chosen.
[[nodiscard]] view::Picture performerPicture(const WorldState& world);

}  // namespace tb
