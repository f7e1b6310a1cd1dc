#pragma once

// Pay for finished shoots: the session fee and buyout in the week after the wrap, and residuals of a
// commercial on the air. Payments are recorded here; balanceWeek() adds them to the cash.

#include "core/game.h"

namespace tb {

// Records all payments due in the current week, in dollars net of guild dues, and adds the dues to
// `workDuesPaidSAG`. The fee of the performer's own production is also logged.
void payFilming(Game& game);

}  // namespace tb
