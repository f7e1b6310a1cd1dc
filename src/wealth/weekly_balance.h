#pragma once

// The balance of the week: everything that was earned becomes cash, and the standing expenses are paid.

#include "core/game.h"

namespace tb {

// The summary's line, in dollars. `income` can be negative, when an event of the week took more than came in.
struct WeekBalance {
  double income = 0;
  double expenses = 0;
};

// Settles the week that the clock shows, once a week, when the summary opens. Moves `totalCashAvailable`,
// which may fall below zero, and `yearToDatePaycheck`, writes both, and adds the tiles of the summary.
//
// `weekNetIncome`, which becomes an entry of `saveWeeklyEarnings`, leaves residuals and expenses out: it is
// what the week's own work brought. The cash has both.
[[nodiscard]] WeekBalance balanceWeek(Game& game);

}  // namespace tb
