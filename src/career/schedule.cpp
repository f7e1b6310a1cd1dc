#include "career/schedule.h"

#include <algorithm>

#include "core/calendar.h"

namespace tb {

Schedule drawSchedule(Game& game) {
  const std::int64_t audition = game.world.weekNumberForTracking + RandomBetween(game.random, 2, 15);
  return {.weekAudition = audition, .weekToWork = audition + RandomBetween(game.random, 4, 20)};
}

std::int64_t drawReleaseWeek(Game& game, std::int64_t weekToWork) {
  return weekToWork + RandomBetween(game.random, 8, 15);
}

std::int64_t yearOfWork(const WorldState& world, std::int64_t weekToWork) {
  const std::int64_t week = std::max<std::int64_t>(weekToWork % weeksPerYear, 1);
  return week < world.weekNumber ? world.yearNumber + 1 : world.yearNumber;
}

}  // namespace tb
