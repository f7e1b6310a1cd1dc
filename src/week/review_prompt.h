#pragma once

// The request to recommend the game, once in a career.

#include "core/game.h"

namespace tb {

// Whether the summary asks now: in the 31st week of a year, while `writtenReview` is 0.
[[nodiscard]] bool isReviewPromptDue(const WorldState& world);

// Answers the request, either way: it is not made again, and `totalEnergyMax` rises by 5.
void answerReviewPrompt(Game& game);

}  // namespace tb
