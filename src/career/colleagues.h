#pragma once

// How good the people are who make a project with the performer. They keep to the performer's own level:
// better actors are seen by better directors.

#include <cstdint>

#include "core/game.h"

namespace tb {

// A director as the week finds one: the performer's level, up to 15 points to either side, and a leap of up
// to 15 points that is rarer the farther it goes. Can be below 0.
[[nodiscard]] std::int64_t drawDirectorForm(Game& game);

// The rating of a director who is hired: such a form, and for one below 0 a beginner's rating of 1 to 7.
[[nodiscard]] std::int64_t drawDirectorRating(Game& game);

// The same for a writer, without the leap.
[[nodiscard]] std::int64_t drawWriterRating(Game& game);

}  // namespace tb
