#pragma once

// A laid-out page as JSON, for the page in the browser to draw. Its shape is web/src/view_types.ts, which
// comes from the same lists.

#include <string>

#include "screens/view.h"

namespace tb {

// Texts are written as they stand (UTF-8). A figure that JSON cannot hold, which no screen should show, is 0.
[[nodiscard]] std::string pageJson(const view::Page& page);

}  // namespace tb
