#pragma once

// What the board and the page of one listing share.

#include <string>

#include "career/casting_board.h"
#include "screens/view.h"

namespace tb {

// "Feature Film • Lead • Non-union".
[[nodiscard]] std::string listingSummary(const CastingListing& listing);

// Submits for the listing, and says so.
[[nodiscard]] view::Button submitButton(const CastingListing& listing);

}  // namespace tb
