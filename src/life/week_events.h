#pragma once

// The event buttons of a week: small things to do for energy, offered by the weekly summary. Each can be used
// once and is gone when the summary closes.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// In the order in which they are drawn, from 1.
enum class WeekEvent : std::uint8_t {
  localTheater = 1,
  scriptReading,
  sideHustle,
  healthCheckup,
  talentChance,
  movieReview,
  relationship,  // with a partner; street mime otherwise
  publicImage,
  sharkBox,
};

// Draws the events of a week: none to three, and the same one can come twice. The Shark Box has no taping to
// go to yet: it is drawn like the others, but never offered.
[[nodiscard]] std::vector<WeekEvent> drawWeekEvents(Game& game);

// The title of the button. The number in it is not always what the event takes.
[[nodiscard]] std::string titleOf(const Game& game, WeekEvent event);

// What the event takes, in energy points, and in dollars for a health checkup.
[[nodiscard]] std::int64_t energyFor(const WorldState& world, WeekEvent event);
[[nodiscard]] double checkupPrice(const WorldState& world);

// Whether the relationship event is a talk with a partner. A single player mimes on the street instead.
[[nodiscard]] bool isWithPartner(const WorldState& world, WeekEvent event);

// The range of what a week's odd job pays, in dollars, by the player's cash.
struct PayRange {
  double least;
  double most;
};
[[nodiscard]] PayRange sidePay(const WorldState& world);

// Why the event can't be used: not enough energy, or cash.
[[nodiscard]] Refusal weekEventRefusal(const WorldState& world, WeekEvent event);

// What came of an event.
struct WeekEventResult {
  std::string text;         // empty for events that open a screen
  std::int64_t change = 0;  // above 0 for a gain, below 0 for a loss
};

// Takes the energy or the cash and brings the effect. A movie review and a talk with a partner only take the
// energy here; their screens do the rest. The event must not be refused.
WeekEventResult useWeekEvent(Game& game, WeekEvent event);

}  // namespace tb
