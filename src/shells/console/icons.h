#pragma once

// The signs of the view vocabulary as a terminal shows them.

#include <string>

#include "screens/view.h"

namespace tb::console {

// "⚡️ 12" for the icon of energy and "12"; the words alone where there is no icon.
[[nodiscard]] std::string withGlyph(view::Icon icon, const std::string& words);

}  // namespace tb::console
