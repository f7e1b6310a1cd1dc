#pragma once

// The order of a week's steps; end_week.cpp lists them.
//
// A week has four phases: the player ends it (A), the summary opens (B) and is shown (C), the summary closes
// (D). The save has no marker for a week in progress: if the game ends between the phases, the next launch is
// at the hub, with the week played and its summary lost.

#include <optional>

#include "core/game.h"
#include "life/separation.h"
#include "week/summary.h"

namespace tb {

// Phase A: everything that is running advances by a week, and so does the clock.
void endWeek(Game& game);

// Phase B, when the summary opens, right after phase A. The clock already shows the new week.
[[nodiscard]] WeekSummary openSummary(Game& game);

// Phase C, each time the summary comes to the top, also after opening: the relationship's step runs again.
// Returns the separation when the partner left.
[[nodiscard]] std::optional<Separation> returnToSummary(Game& game);

// Phase D, when the player closes the summary.
void closeSummary(Game& game);

enum class HubRefresh : std::uint8_t { launch, worldChanged };

// Updates derived values for the hub: at launch, and after every action that changed the state. A year ends
// here.
void refreshHub(Game& game, HubRefresh reason);

}  // namespace tb
