#include "core/debug_log.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace tb {

void debugLog(std::string_view line) {
  // A single write, so that lines of several processes do not interleave.
  std::string whole(line);
  std::ranges::replace(whole, '\n', ' ');
  whole += '\n';
  std::fwrite(whole.data(), 1, whole.size(), stderr);
}

}  // namespace tb
