#pragma once

// A title's dealings with networks, for the page of the title.

#include <cstdint>
#include <optional>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The deal in force or the bids so far, and the deals that are over; nothing for a title that no network has
// bid for.
[[nodiscard]] std::optional<view::Section> syndicationSection(const Game& game, std::int64_t filmId);

}  // namespace tb
