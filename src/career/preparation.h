#pragma once

// What a project starts from when it enters the performer's list: how ready the performer is, how hard the
// role is to get and what the world expects of the title.

#include <cstdint>

#include "core/game.h"

namespace tb {

// How strong the performer's audition would be today, in points, above 0.
[[nodiscard]] double drawRehearsalRating(Game& game);

// The performance that comes of such a rehearsal before any work on it: 60 to 90 % of it.
[[nodiscard]] double drawPerformanceRating(Game& game, double rehearsalRating);

// The anticipation of a project by a director of that rating, in points; a low enough director makes it
// negative.
[[nodiscard]] std::int64_t drawHypeRating(Game& game, std::int64_t directorRating);

// How hard a role is to get, in points, 0 and up: by the part, the money in the project, the residual, the
// guild and the type. Reads the record's terms.
[[nodiscard]] double auditionDifficulty(const Audition& project, bool isGuildMember);

}  // namespace tb
