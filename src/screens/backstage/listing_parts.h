#pragma once

// Shared parts of the board and the details of a listing.

#include <string>

#include "career/casting_board.h"
#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "Feature Film • Lead • Non-union".
[[nodiscard]] std::string listingSummary(const CastingListing& listing);

// The pay: "$1,200 • 1.4% residual".
[[nodiscard]] std::string listingPay(const Game& game, const CastingListing& listing);

// The button to submit. It shows why a submission would be refused, or that it was already made.
[[nodiscard]] view::Button submitButton(const WorldState& world, const CastingListing& listing);

}  // namespace tb
