#pragma once

// Weekly options: subscriptions that are paid every week from the first one on.

#include <cstdint>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

struct WeeklyOption {
  std::int64_t id;  // 100 and up
  std::string_view title;
  std::int64_t energyBoost;  // points per week
  double cost;               // dollars per week
};

// The option with this id, which must exist.
[[nodiscard]] const WeeklyOption& weeklyOptionWith(std::int64_t id);

// Why the option can't be bought: the first payment needs the cash.
[[nodiscard]] Refusal weeklyOptionRefusal(const Game& game, std::int64_t id);

// Buys the option, or buys it again in place of its item: pays the first week and raises the energy maximum.
// Refused without the cash.
[[nodiscard]] Refusal buyWeeklyOption(Game& game, std::int64_t id);

// Ends the option and takes back its energy. Does nothing when it is not paid for.
void cancelWeeklyOption(Game& game, std::int64_t id);

}  // namespace tb
