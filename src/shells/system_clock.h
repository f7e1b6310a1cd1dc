#pragma once

// The device's clock.

#include <chrono>

#include "core/plain_types.h"

namespace tb {

// Returns the current time.
inline plist::Date systemClock() {
  using namespace std::chrono;
  constexpr sys_seconds epoch = sys_days{2001y / January / 1};  // epoch of property-list dates
  return {.seconds = duration<double>(system_clock::now() - epoch).count()};
}

}  // namespace tb
