#pragma once

// A feature film in the cinemas: an opening in up to 52 markets, seven weeks after it, and the close.

#include <cstdint>
#include <optional>

#include "core/game.h"

namespace tb {

// The opening of a film: a record for every market that is worth one, by the project's budget and hype. Keeps
// the week's post for postBoxOfficeChirp(). Writes `saveAllBoxOfficeList` and `chirpId`.
void openBoxOffice(Game& game, const Audition& project);

// Week 1 to 7 after the opening: fans for the lead, a week's takings in each market and, in the last week,
// what falls due to holders of a stake. Writes `saveAllBoxOfficeList`, `chirpId` and the payouts.
void advanceBoxOffice(Game& game, const Audition& project, std::int64_t weeksSinceRelease);

// Ends the weekly step: Box Office Jojo posts the opening that was kept, the last one of the week, if any.
// Writes `saveAllChirpList`.
void postBoxOfficeChirp(Game& game);

// When the summary opens: films whose run is over, in week 8 and later, get their gross. Writes the films,
// the box office and `activityTracker`. A film without a record stays at 0 and is looked at again every week,
// and so is one that took nothing.
void closeBoxOffice(Game& game);

// What a film took so far in all markets, in dollars; nothing when it opened in none.
[[nodiscard]] std::optional<double> grossOf(const WorldState& world, std::int64_t filmId);

}  // namespace tb
