#include "core/log.h"

#include <utility>

namespace tb {

void logLine(WorldState& world, const std::string& text) {
  world.WeekFeed.push_back(text);
  logActivity(world, text);
}

void logActivity(WorldState& world, std::string text) { world.activityTracker.push_front(std::move(text)); }

}  // namespace tb
