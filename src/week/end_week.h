#pragma once

// The order of a week. Whoever wants to know what happens when reads end_week.cpp.
//
// A week has four phases: the player ends it (A), the summary opens (B) and comes on screen (C), the summary
// closes (D). Each step saves what it changed; there is no mark of a week in progress. A game that ends
// between the phases comes back at the hub with the week played and its summary lost.

#include "core/game.h"
#include "week/summary.h"

namespace tb {

// Phase A: every running thing advances by a week, and the clock with it.
void endWeek(Game& game);

// Phase B, when the summary opens, right after phase A. The clock already shows the new week.
[[nodiscard]] WeekSummary openSummary(Game& game);

// Phase D, when the player closes the summary.
void closeSummary(Game& game);

enum class HubRefresh : std::uint8_t { launch, worldChanged };

// The hub is drawn anew: at launch, and after every action that changed the state. The one place where a year
// ends.
void refreshHub(Game& game, HubRefresh reason);

}  // namespace tb
