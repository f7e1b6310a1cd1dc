#include "core/debug_log.h"

#include <cstdio>
#include <string>

namespace tb {

void debugLog(std::string_view line) {
  // One write a line, so that lines of several processes do not mix.
  const std::string whole = std::string(line) + "\n";
  std::fwrite(whole.data(), 1, whole.size(), stderr);
}

}  // namespace tb
