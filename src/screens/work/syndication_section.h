#pragma once

// The syndication section of a title's page.

#include <cstdint>
#include <optional>

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The active deal or the current bids, and past deals; nothing for a title without bids.
[[nodiscard]] std::optional<view::Section> syndicationSection(const Game& game, std::int64_t filmId);

}  // namespace tb
