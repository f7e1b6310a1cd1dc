#pragma once

// Review texts about a title.

#include <string>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

// Draws a row of a review bank (banks/draw.h) and fills in the title, its director, the performer and its
// nouns. Banks of critics also need the `genre`.
[[nodiscard]] std::string drawReview(Game& game, Bank bank, const Film& film, const std::string& genre = "");
[[nodiscard]] std::string drawReview(Game& game, Bank bank, const Audition& project,
                                     const std::string& genre);

}  // namespace tb
