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

// Phase C, each time the summary comes to the top: when it opens, and when a screen over it closes. The
// relationship's step runs again.
struct SummaryCalls {
  bool forReview = false;                // the player is asked to recommend the game
  std::optional<Separation> separation;  // the partner left
  bool forRandomEvent = false;           // a public relations event opens
};
[[nodiscard]] SummaryCalls showSummary(Game& game);

// Phase D, when the player closes the summary.
void closeSummary(Game& game);

enum class HubRefresh : std::uint8_t { launch, worldChanged };

// Updates derived values for the hub: at launch, and after every action that changed the state. A year ends
// here.
void refreshHub(Game& game, HubRefresh reason);

}  // namespace tb
