#pragma once

// Patron: fans subscribe to the performer's film reviews.

#include "core/game.h"

namespace tb {

// The week's payment in dollars, which the balance adds to the income: it grows with fans and fame up to
// 10,000, and fades to nothing over the 200 weeks that follow the newest review. Below 10 reviews it is 0 and
// nothing happens. Adds to `totalPatronEarnings` and `trackPatronEarnings`, gives the summary its tile from a
// dollar up, and tells of the first payment. Writes what it changed.
double payPatron(Game& game);

}  // namespace tb
