#pragma once

// What the board and the page of one listing share.

#include <string>

#include "career/casting_board.h"
#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "Feature Film • Lead • Non-union".
[[nodiscard]] std::string listingSummary(const CastingListing& listing);

// What the role pays: "$1,200 • 1.4% residual".
[[nodiscard]] std::string listingPay(const Game& game, const CastingListing& listing);

// Submits for the listing. One that would be refused says why before it is pressed, and one that was used
// that it was.
[[nodiscard]] view::Button submitButton(const WorldState& world, const CastingListing& listing);

}  // namespace tb
