#pragma once

// Generates the TypeScript types of the view vocabulary from the same lists as the JSON.

#include <string>

namespace tb {

// The contents of web/src/view_types.ts.
[[nodiscard]] std::string viewTypes();

}  // namespace tb
