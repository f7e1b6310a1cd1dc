#pragma once

// What the board and the page of one listing share.

#include <string>

#include "career/casting_board.h"
#include "core/game.h"
#include "screens/view.h"

namespace tb {

// "Feature Film • Lead • Non-union".
[[nodiscard]] std::string listingSummary(const CastingListing& listing);

// Submits for the listing, and says so. Of a listing that has been submitted for already the button is of
// less weight and asks no energy: all that it brings is the rule's reminder.
[[nodiscard]] view::Button submitButton(const WorldState& world, const CastingListing& listing);

[[nodiscard]] bool isSubmitted(const WorldState& world, const CastingListing& listing);

// What stands under the button from then on.
[[nodiscard]] view::Text submittedCaption();

}  // namespace tb
