#pragma once

// The page's TypeScript types of the view vocabulary, written from the same lists as the JSON of a page.

#include <string>

namespace tb {

// The whole of web/src/view_types.ts.
[[nodiscard]] std::string viewTypes();

}  // namespace tb
