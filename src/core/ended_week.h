#pragma once

// The week that just ended, seen when the clock already shows the new one: by the summary, and by what is
// told of that week from then on.

#include <cstdint>

#include "core/world_state.h"

namespace tb {

// By the calendar. In the last week of a year `weekNumber` is 53 and `yearNumber` still the old year.
struct EndedWeek {
  std::int64_t week;
  std::int64_t year;
};

[[nodiscard]] constexpr std::int64_t endedTrackingWeek(const WorldState& world) {
  return world.weekNumberForTracking - 1;
}

[[nodiscard]] constexpr EndedWeek endedWeek(const WorldState& world) {
  constexpr std::int64_t weeksOfAYear = 52;
  if (world.weekNumber == 1) return {.week = weeksOfAYear, .year = world.yearNumber - 1};
  return {.week = world.weekNumber - 1, .year = world.yearNumber};
}

}  // namespace tb
