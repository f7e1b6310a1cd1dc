#pragma once

// The two logs of a career. `WeekFeed` holds the lines of the coming weekly summary, oldest first;
// `activityTracker` is the record of the whole career, newest first, never pruned.

#include <string>

#include "core/world_state.h"

namespace tb {

// Puts a line into both. Saves nothing: the step that logs writes `activityTracker` with the rest of what it
// changed.
void logLine(WorldState& world, const std::string& text);

// Into the career's record alone.
void logActivity(WorldState& world, std::string text);

}  // namespace tb
