#pragma once

// Titles that were released in the week that ended.

#include <cstddef>
#include <vector>

#include "core/game.h"

namespace tb {

// Sets `releaseOffered` when a title other than a commercial was released in the week that ended.
void offerRelease(WorldState& world);

// Indexes in `saveAllFilmList` of the titles that were released in the week that ended, without commercials,
// in the order of the list (latest wrap first).
[[nodiscard]] std::vector<std::size_t> newReleases(const WorldState& world);

// Fills `newReleaseReviews` with a critic's card for each of newReleases(), in the same order. The texts are
// drawn again whenever the screen opens; the scores are the films' own.
void writeReleaseReviews(Game& game);

}  // namespace tb
