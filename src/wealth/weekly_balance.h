#pragma once

// The week's balance: adds all earnings to the cash and pays the recurring expenses.

#include "core/game.h"

namespace tb {

// Totals for the summary, in dollars. `income` can be negative after an expensive event.
struct WeekBalance {
  double income = 0;
  double expenses = 0;
};

// Settles the current week; called once, when the summary opens. Changes `totalCashAvailable`, which can
// become negative, and `yearToDatePaycheck`, and adds the tiles of the summary.
//
// `weekNetIncome`, which is appended to `saveWeeklyEarnings`, excludes residuals and expenses; the cash
// includes both.
[[nodiscard]] WeekBalance balanceWeek(Game& game);

}  // namespace tb
