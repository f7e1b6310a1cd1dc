#pragma once

// The standing items of a week: basic needs, dues, subscriptions, taxes and insurance, and what comes in as
// regularly. Each stays in `saveAllWeeklyLineItems` from the day it is taken on until the rule that made it
// takes it off again.

#include "core/world_state.h"

namespace tb {

// What the items take and what they bring, in dollars a week, 0 and up.
[[nodiscard]] double standingExpenses(const WorldState& world);
[[nodiscard]] double standingIncome(const WorldState& world);

}  // namespace tb
