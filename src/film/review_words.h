#pragma once

// The words that people have for a title: rows of the banks of reviews, filled in.

#include <string>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

// A row of a bank of reviews to be told (banks/draw.h), with the title, its director, the performer and what
// is seen in it filled in. Banks of critics also speak of the `genre`.
[[nodiscard]] std::string drawReview(Game& game, Bank bank, const Film& film, const std::string& genre = "");
[[nodiscard]] std::string drawReview(Game& game, Bank bank, const Audition& project,
                                     const std::string& genre);

}  // namespace tb
