#pragma once

// The theatrical run of a feature film: the opening in up to 52 markets, seven more weeks, and the final
// gross.

#include <cstdint>
#include <optional>

#include "core/game.h"

namespace tb {

// Opens a film: adds a record for every market with a large enough opening, drawn from the project's budget
// and hype. Sets the post for postBoxOfficeChirp().
void openBoxOffice(Game& game, const Audition& project);

// Runs week 1 to 7 after the opening: adds fans for the lead and the week's gross in each market, and pays
// stakes in the last week.
void advanceBoxOffice(Game& game, const Audition& project, std::int64_t weeksSinceRelease);

// Publishes Box Office Jojo's post about the last opening of the week; does nothing in a week without one.
void postBoxOfficeChirp(Game& game);

// Runs when the summary opens. Sets the final gross of films in week 8 or later. A film without a record or
// with a gross of 0 is checked again every week.
void closeBoxOffice(Game& game);

// A film's gross so far in all markets, in dollars; nothing when it opened in none.
[[nodiscard]] std::optional<double> grossOf(const WorldState& world, std::int64_t filmId);

}  // namespace tb
