#include "core/log.h"

#include <utility>

namespace tb {

void logLine(WorldState& world, const News& about, const std::string& text) {
  feedLine(world, about, text);
  logActivity(world, text);
}

void feedLine(WorldState& world, const News& about, std::string text) {
  world.WeekFeed.push_back(std::move(text));
  world.weekFeedNews.push_back(about);
}

void logActivity(WorldState& world, std::string text) { world.activityTracker.push_front(std::move(text)); }

}  // namespace tb
