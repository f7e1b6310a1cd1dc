#pragma once

// What the performer has of a title's syndication: a share of the price for whoever holds a stake, and
// residuals for whoever is on the screen.

#include "core/game.h"

namespace tb {

// A deal that was just struck.
struct NetworkDeal {
  std::int64_t price = 0;  // dollars
  std::int64_t years = 0;
  std::string network;
};

// Records the performer's shares of the price, dated in the present week: equity, and royalties less the
// agent's part. Nothing for a film without a stake. Writes the payouts and the agents, each when it changed.
void paySyndicationShares(Game& game, const Film& film, const NetworkDeal& deal);

// Records a residual for a title in syndication, net of guild dues and of the commission on a role that an
// agent brought, dated in the present week. Nothing when the title carries no residuals. Writes
// `saveAllWeeklyEarnings`, `workDuesPaidSAG` and the agents.
void paySyndicationResidual(Game& game, const Syndication& title);

}  // namespace tb
