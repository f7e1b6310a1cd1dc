#pragma once

// The paragraph above a title's audience reviews: what they come to, read off the words they use.

#include <optional>
#include <span>
#include <string>

#include "core/game.h"

namespace tb {

// Sums the reviews up in four sentences: a verdict, what is praised against what is blamed, the consensus and
// an advice, in the tone in which the reviews are written. Without a title it speaks of "this film". Reviews
// that are blank do not count; when none is left, the paragraph says that there are not enough.
[[nodiscard]] std::string summarizeReviews(Game& game, std::span<const std::string> reviews,
                                           const std::optional<std::string>& title = std::nullopt);

}  // namespace tb
