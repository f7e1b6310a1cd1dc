#pragma once

// The current time, used as the timestamp of posts. The shell passes in the device's clock; the default clock
// is stopped, so that tests do not depend on the time.

#include "core/plain_types.h"

namespace tb {

// Returns the current time.
using Clock = plist::Date (*)();

// Always January 1, 2001, midnight UTC.
inline plist::Date stoppedClock() { return {}; }

}  // namespace tb
