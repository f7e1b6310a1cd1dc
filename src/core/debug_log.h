#pragma once

// The debug log: one line each on the standard error stream, for whoever looks into a failure. The game shows
// none of it.

#include <string_view>

namespace tb {

void debugLog(std::string_view line);

}  // namespace tb
