#pragma once

// Texts about a project, shared by several screens.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "Feature Film", "TV-Series", ...
[[nodiscard]] std::string typeName(std::int64_t typeOfFilm);

// The title, with the season number from the second season on.
[[nodiscard]] std::string titleWithSeason(const Audition& project);
[[nodiscard]] std::string titleWithSeason(const Film& film);

// "Union" or "Non-union".
[[nodiscard]] std::string guildWords(std::int64_t isUnion);

// "this week", "in 3 weeks", "2 weeks ago", for a week of `weekNumberForTracking`.
[[nodiscard]] std::string whenIs(const WorldState& world, std::int64_t week);

// The project's progress: "Audition in 3 weeks", "Never heard back".
[[nodiscard]] std::string progressWords(const WorldState& world, const Audition& project);

// True from the week after the release on, when scores and money are visible.
[[nodiscard]] bool isReleased(const WorldState& world, const Audition& project);

// True for a project without an answer to the submission or with a lost audition.
[[nodiscard]] bool isOver(const WorldState& world, const Audition& project);

// Character, role, description and the performer's episodes.
[[nodiscard]] view::Section roleSection(const Audition& project);

struct Terms {
  double fee = 0;  // dollars
  double buyout = 0;
  double residual = 0;  // a fraction
  double royalty = 0;   // percent
};

// The terms: "$1,200 • $720 buyout • 1.4% residual", "0.88% royalty", "Unpaid".
[[nodiscard]] std::string payWords(const Locale& locale, const Terms& terms);

}  // namespace tb
