#pragma once

// Ratings of directors and writers. They are close to the performer's own level: better actors get better
// directors.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Draws a director's form: the performer's level plus or minus up to 15 points, plus a bonus of up to 15
// points, where higher ones are rarer. Can be negative.
[[nodiscard]] std::int64_t drawDirectorForm(Game& game);

// Draws a hired director's rating: a form, or 1 to 7 when that is negative.
[[nodiscard]] std::int64_t drawDirectorRating(Game& game);

// The same for a writer, without the bonus.
[[nodiscard]] std::int64_t drawWriterRating(Game& game);

}  // namespace tb
