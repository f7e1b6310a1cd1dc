#pragma once

// The two logs of a career. `WeekFeed` holds the lines of the next weekly summary, oldest first;
// `activityTracker` is the log of the whole career, newest first, and is never trimmed.
//
// These functions are the only way to add a line.

#include <string>

#include "core/world_state.h"

namespace tb {

// Adds to both logs.
void logLine(WorldState& world, const News& about, const std::string& text);

// Adds to the next summary only.
void feedLine(WorldState& world, const News& about, std::string text);

// Adds to the career's log only.
void logActivity(WorldState& world, std::string text);

}  // namespace tb
