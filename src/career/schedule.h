#pragma once

// The weeks of a project, as values of `weekNumberForTracking`.

#include <cstdint>

#include "core/game.h"

namespace tb {

struct Schedule {
  std::int64_t weekAudition;  // 2 to 15 weeks from now
  std::int64_t weekToWork;    // week of the wrap, 4 to 20 weeks after the audition
};
[[nodiscard]] Schedule drawSchedule(Game& game);

// Draws the release week, 8 to 15 weeks after the wrap.
[[nodiscard]] std::int64_t drawReleaseWeek(Game& game, std::int64_t weekToWork);

// The calendar year of filming. A project is assumed to wrap within a year: when its week of the year is
// before the current one, it is next year.
[[nodiscard]] std::int64_t yearOfWork(const WorldState& world, std::int64_t weekToWork);

}  // namespace tb
