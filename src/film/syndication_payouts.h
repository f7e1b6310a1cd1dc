#pragma once

// The performer's income from syndication: a share of the price for a stake, and residuals for a role.

#include "core/game.h"

namespace tb {

// A deal that was just closed.
struct NetworkDeal {
  std::int64_t price = 0;  // dollars
  std::int64_t years = 0;
  std::string network;
};

// Records the performer's shares of the price, dated in the current week: equity, and royalties minus the
// agent's commission. Does nothing for a film without a stake.
void paySyndicationShares(Game& game, const Film& film, const NetworkDeal& deal);

// Records a residual for a title in syndication, net of guild dues and of commission (on roles from the
// agent), dated in the current week. Does nothing when the title pays no residuals.
void paySyndicationResidual(Game& game, const Syndication& title);

}  // namespace tb
