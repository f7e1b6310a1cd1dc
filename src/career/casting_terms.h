#pragma once

// What a role on the casting board offers.

#include "career/casting_board.h"

namespace tb {

// A principal role in a series, and in how many episodes it is seen.
struct TvRole {
  std::string_view label;
  std::int64_t fewestEpisodes;
  std::int64_t mostEpisodes;
};

// Draws the part of the terms that goes by the type of the listing's project: budget, pay, buyout, residual
// and episodes, and where the type decides them the role and the union flag. The part and the union flag of
// the performer's own guild stand in the listing. `tvRole` is the role that a principal has if it is a
// series.
void drawTerms(Game& game, CastingListing& listing, const TvRole& tvRole);

// A role label for a part in anything but a series.
[[nodiscard]] std::string drawRole(Game& game, std::int64_t isPrincipal);

// One of the two roles that a series has for a principal.
[[nodiscard]] const TvRole& drawTvRole(Game& game);

// The union flag: three projects in four are for performers of the same standing with the guild.
[[nodiscard]] std::int64_t drawUnionFlag(Game& game);

// Draws all of a listing that is not decided yet: the project, the part, the role and the union flag stand in
// it.
void completeListing(Game& game, CastingListing& listing, const TvRole& tvRole);

}  // namespace tb
