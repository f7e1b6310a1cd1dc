#pragma once

// Weekly options: subscriptions that are paid every week from the first one on. Most raise the energy maximum
// while they are paid for; some open a screen.

#include <cstdint>
#include <span>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// What the performer needs before an option can be bought.
enum class OptionNeed : std::uint8_t { nothing, age, property, vehicle, fame };

struct WeeklyOption {
  std::int64_t id;  // 100 and up, without gaps
  std::string_view title;
  std::int64_t energyBoost;  // points per week
  double cost;               // dollars per week
  std::string_view category;
  std::string_view requirement;  // what it needs, or what it opens; may be empty
  OptionNeed need = OptionNeed::nothing;
};

// All options, cheapest first except for the last one, in the order of their ids.
[[nodiscard]] std::span<const WeeklyOption> weeklyOptions();

// The option with this id, which must exist.
[[nodiscard]] const WeeklyOption& weeklyOptionWith(std::int64_t id);

// Whether the performer has what an option needs.
[[nodiscard]] bool isMet(const WorldState& world, OptionNeed need);

// Why the option can't be bought: it needs something first, or the cash for the first payment.
[[nodiscard]] Refusal weeklyOptionRefusal(const Game& game, std::int64_t id);

// Buys the option, or buys it again in place of its item: pays the first week and raises the energy maximum.
[[nodiscard]] Refusal buyWeeklyOption(Game& game, std::int64_t id);

// Ends the option and takes back its energy. Does nothing when it is not paid for.
void cancelWeeklyOption(Game& game, std::int64_t id);

}  // namespace tb
