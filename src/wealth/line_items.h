#pragma once

// Recurring weekly items in `saveAllWeeklyLineItems`: basic needs, dues, subscriptions, taxes, insurance, and
// recurring income.

#include "core/world_state.h"

namespace tb {

// The totals of expenses and of income, in dollars per week, 0 and up.
[[nodiscard]] double standingExpenses(const WorldState& world);
[[nodiscard]] double standingIncome(const WorldState& world);

}  // namespace tb
