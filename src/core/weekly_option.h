#pragma once

// The ids of weekly options that open something: WeeklyLineItem::typeOfExpense of their items.

#include <algorithm>
#include <cstdint>

#include "core/world_state.h"

namespace tb {

namespace weeklyOption {
inline constexpr std::int64_t metflix = 100;
inline constexpr std::int64_t moviePass = 103;
inline constexpr std::int64_t theCameo = 116;
}  // namespace weeklyOption

// Whether the player pays for the weekly option.
[[nodiscard]] inline bool hasWeeklyOption(const WorldState& world, std::int64_t id) {
  return std::ranges::any_of(world.saveAllWeeklyLineItems, [id](const WeeklyLineItem& item) {
    return item.category == WeeklyLineItem::lifestyleCategory && item.typeOfExpense == id;
  });
}

}  // namespace tb
