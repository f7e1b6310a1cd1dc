#pragma once

// The initial values of a new project: rehearsal, performance, hype and difficulty.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Draws the score of an audition without further rehearsals, in points, above 0.
[[nodiscard]] double drawRehearsalRating(Game& game);

// Draws the initial performance: 60 to 90 % of the rehearsal rating.
[[nodiscard]] double drawPerformanceRating(Game& game, double rehearsalRating);

// Draws the hype of a project by its director's rating, in points; can be negative for a low rating.
[[nodiscard]] std::int64_t drawHypeRating(Game& game, std::int64_t directorRating);

// The difficulty of getting a role, in points, 0 and up: by part, budget and pay, residual, union flag and
// type.
[[nodiscard]] double auditionDifficulty(const Audition& project, bool isGuildMember);

}  // namespace tb
