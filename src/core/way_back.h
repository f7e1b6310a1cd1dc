#pragma once

// Back to last week: the career as it was right before the last End Week. Everything since then is undone,
// and can be had again until the next End Week. core/week_history.h keeps what is needed.
//
// A shell offers the same after a stop of the game, when no career is loaded: lastWeek(store) names the week,
// backToLastWeek(store) takes it back, and then a new App is made on the store.

#include <expected>
#include <optional>
#include <string>

#include "core/game.h"

namespace tb {

struct CareerWeek {
  Int week = 0;  // of the year
  Int year = 0;
};

// The week to which the career can go back, and the one to which it can return after that; nothing when there
// is none.
[[nodiscard]] std::optional<CareerWeek> lastWeek(const SaveStore& store);
[[nodiscard]] std::optional<CareerWeek> weekTakenBack(const SaveStore& store);

// Keeps the way back to this moment. Call it right before a week ends. Does nothing in a career that was
// started without a way back.
void keepWayBack(Game& game);

// Goes back, or returns. The App loads the career when the action ends. False when that is not possible, and
// the career is unchanged.
bool backToLastWeek(Game& game);
bool returnToWeek(Game& game);

// Goes back in a store without a loaded career, and commits. The error is a sentence for the player.
std::expected<void, std::string> backToLastWeek(SaveStore& store);

}  // namespace tb
