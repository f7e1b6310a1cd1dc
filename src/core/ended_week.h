#pragma once

// The week that just ended, for code that runs when the clock already shows the new week, such as the
// summary.

#include <cstdint>

#include "core/calendar.h"
#include "core/world_state.h"

namespace tb {

// Calendar week and year. After the last week of a year `weekNumber` is 53 and `yearNumber` is still the old
// year.
struct EndedWeek {
  std::int64_t week;
  std::int64_t year;
};

[[nodiscard]] constexpr std::int64_t endedTrackingWeek(const WorldState& world) {
  return world.weekNumberForTracking - 1;
}

[[nodiscard]] constexpr EndedWeek endedWeek(const WorldState& world) {
  if (world.weekNumber == 1) return {.week = weeksPerYear, .year = world.yearNumber - 1};
  return {.week = world.weekNumber - 1, .year = world.yearNumber};
}

}  // namespace tb
