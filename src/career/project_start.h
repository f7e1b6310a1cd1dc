#pragma once

// Turns a listing into a project of the performer.

#include "career/casting_board.h"
#include "core/game.h"

namespace tb {

// The project's record with the listing's data only.
[[nodiscard]] Audition projectFrom(const CastingListing& listing);

// Draws the performer's preparation, the release week, the season, the hype and the writer. The record must
// already have its weeks, terms and director.
void startProject(Game& game, Audition& project);

}  // namespace tb
