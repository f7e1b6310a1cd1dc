#pragma once

// A laid-out page as JSON for the web page. web/src/view_types.ts describes it and is generated from the same
// lists.

#include <string>

#include "screens/view.h"

namespace tb {

// Texts are UTF-8. Infinity and NaN, which no screen should have, become 0.
[[nodiscard]] std::string pageJson(const view::Page& page);

}  // namespace tb
