#pragma once

// What came out in the week that ended, as the summary offers it and the critics see it.

#include <cstddef>
#include <vector>

#include "core/game.h"

namespace tb {

// Sets `releaseOffered` when a wrapped project came out in the week that ended; commercials are no event.
void offerRelease(WorldState& world);

// The titles that came out in the week that ended, commercials left out: where each stands in
// `saveAllFilmList`, in the order of the list, the latest wrap first.
[[nodiscard]] std::vector<std::size_t> newReleases(const WorldState& world);

// Fills `newReleaseReviews` with one critic's card for each of newReleases(), in their order. Drawn anew
// whenever the screen opens; only the scores on the cards are the films' own.
void writeReleaseReviews(Game& game);

}  // namespace tb
