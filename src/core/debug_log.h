#pragma once

// The debug log: one line per message on standard error, for debugging. The game never shows it.

#include <string_view>

namespace tb {

void debugLog(std::string_view line);

}  // namespace tb
