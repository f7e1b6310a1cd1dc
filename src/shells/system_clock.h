#pragma once

// The device's clock.

#include <chrono>

#include "core/plain_types.h"

namespace tb {

// The epoch of property-list dates, in seconds since 1970.
inline constexpr double dateEpoch = 978'307'200;

// Returns the current time.
inline plist::Date systemClock() {
  using namespace std::chrono;
  constexpr sys_seconds epoch = sys_days{2001y / January / 1};  // epoch of property-list dates
  return {.seconds = duration<double>(system_clock::now() - epoch).count()};
}

}  // namespace tb
