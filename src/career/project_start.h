#pragma once

// A project as it comes to the performer: what its listing says, and what is drawn as it enters the list.

#include "career/casting_board.h"
#include "core/game.h"

namespace tb {

// The record of a listing, with nothing of the performer in it yet.
[[nodiscard]] Audition projectFrom(const CastingListing& listing);

// Draws what a project starts from in the present week: the performer's preparation, the release, the season,
// the hype and the writer. Its weeks, its terms and its director stand in the record. Writes nothing.
void startProject(Game& game, Audition& project);

}  // namespace tb
