#pragma once

// The two logs of a career. `WeekFeed` holds the lines of the coming weekly summary, oldest first;
// `activityTracker` is the record of the whole career, newest first, never pruned.
//
// These functions are the only way to add a line. None of them saves: the step that logs writes
// `activityTracker` with the rest of what it changed.

#include <string>

#include "core/world_state.h"

namespace tb {

// Into both logs.
void logLine(WorldState& world, const News& about, const std::string& text);

// Into the coming summary alone.
void feedLine(WorldState& world, const News& about, std::string text);

// Into the career's record alone.
void logActivity(WorldState& world, std::string text);

}  // namespace tb
