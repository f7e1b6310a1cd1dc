#pragma once

// How a project is spoken of on the screens of the trade.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "Feature Film", "TV-Series", ...
[[nodiscard]] std::string typeName(std::int64_t typeOfFilm);

// The title, from the second season of a series on with its number.
[[nodiscard]] std::string titleWithSeason(const Audition& project);
[[nodiscard]] std::string titleWithSeason(const Film& film);

// "Union" or "Non-union".
[[nodiscard]] std::string guildWords(std::int64_t isUnion);

// "this week", "in 3 weeks", "2 weeks ago", for a week of `weekNumberForTracking`.
[[nodiscard]] std::string whenIs(const WorldState& world, std::int64_t week);

// How far the project has come, in a few words: "Audition in 3 weeks", "Never heard back".
[[nodiscard]] std::string progressWords(const WorldState& world, const Audition& project);

// True from the week after the release on, when scores and money are there to be seen.
[[nodiscard]] bool isReleased(const WorldState& world, const Audition& project);

// True for a project that came to nothing: no answer to the submission, or not selected at the audition.
[[nodiscard]] bool isOver(const WorldState& world, const Audition& project);

// The character, the role and its description, and the episodes that the performer is in.
[[nodiscard]] view::Section roleSection(const Audition& project);

struct Terms {
  double fee = 0;  // dollars
  double buyout = 0;
  double residual = 0;  // a fraction
  double royalty = 0;   // in percent
};

// "$1,200", and what is offered beside or in place of the fee: "$1,200 • $720 buyout • 1.4% residual",
// "0.88% royalty", "Unpaid".
[[nodiscard]] std::string payWords(const Locale& locale, const Terms& terms);

}  // namespace tb
