#pragma once

// The time of day, with which posts are stamped. The shell hands in the device's clock; without one the time
// stands still, so that what a test plays is the same at any hour.

#include "core/plain_types.h"

namespace tb {

// Gives the present moment.
using Clock = plist::Date (*)();

// Always January 1, 2001, midnight UTC.
inline plist::Date stoppedClock() { return {}; }

}  // namespace tb
