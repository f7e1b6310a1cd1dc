#pragma once

// The terms of a role on the casting board.

#include "career/casting_board.h"

namespace tb {

// A principal role in a series, and its number of episodes.
struct TvRole {
  std::string_view label;
  std::int64_t minEpisodes;
  std::int64_t maxEpisodes;
};

// The largest budget of a film on the casting board, in dollars. Larger productions come through an agent.
inline constexpr std::int64_t boardBudget = 990'000;

// Draws the terms that depend on the listing's type: budget, pay, buyout, residual and episodes, and for some
// types the role and the union flag. The listing already has its part and its union flag. `tvRole` is used
// for a principal role in a series. A film's budget is up to `maxBudget`; other budgets are as on the board,
// cut to `maxBudget` unless it is 0.
void drawTerms(Game& game, CastingListing& listing, const TvRole& tvRole,
               std::int64_t maxBudget = boardBudget);

// Draws a role label for anything but a series.
[[nodiscard]] std::string drawRole(Game& game, std::int64_t isPrincipal);

// Draws one of the two principal roles of a series.
[[nodiscard]] const TvRole& drawTvRole(Game& game);

// Draws the union flag: with a chance of three in four it matches the performer's guild membership.
[[nodiscard]] std::int64_t drawUnionFlag(Game& game);

// Draws the rest of a listing whose project, part, role and union flag are set.
void completeListing(Game& game, CastingListing& listing, const TvRole& tvRole,
                     std::int64_t maxBudget = boardBudget);

}  // namespace tb
