#pragma once

// One-time lifestyle options. `saveOneTime` has the ids of those that were claimed.

#include <cstdint>
#include <span>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

struct OneTimeOption {
  std::int64_t id;  // 900 and up, without gaps
  std::string_view title;
  std::string_view description;
  double cost;   // dollars
  double bonus;  // experience
};

// All options, in the order of their ids.
[[nodiscard]] std::span<const OneTimeOption> oneTimeOptions();

[[nodiscard]] bool isClaimed(const WorldState& world, const OneTimeOption& option);

// Why the option can't be claimed: it was claimed already, or not every acting class is finished. Cash is no
// reason: what an option takes can leave the player in debt.
[[nodiscard]] Refusal oneTimeRefusal(const WorldState& world, const OneTimeOption& option);

// The cash that claiming takes, in dollars: the cost, except that forgotten bribes are free.
[[nodiscard]] double cashTakenBy(const OneTimeOption& option);

// Claims the option, for the rest of the career.
[[nodiscard]] Refusal claimOneTimeOption(Game& game, const OneTimeOption& option);

}  // namespace tb
