#pragma once

// The summary above a title's audience reviews, based on keywords.

#include <optional>
#include <span>
#include <string>

#include "core/game.h"

namespace tb {

// Summarizes reviews in four sentences: a verdict, praise and blame, the consensus, and a recommendation, in
// the tone of the reviews. An empty title becomes "this film". Blank reviews are ignored; if none is left,
// the paragraph says that there are not enough reviews.
[[nodiscard]] std::string summarizeReviews(Game& game, std::span<const std::string> reviews,
                                           const std::optional<std::string>& title = std::nullopt);

}  // namespace tb
