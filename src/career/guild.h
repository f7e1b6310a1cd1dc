#pragma once

// The actors' guild: an initiation fee once, 3 % of earnings for good, and the union castings.

#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr double guildInitiationFee = 3000;      // dollars
inline constexpr std::int64_t rolesForEligibility = 2;  // principal roles booked

// How many principal roles the performer has booked.
[[nodiscard]] std::int64_t guildEligibility(const WorldState& world);

// Why the guild does not take the performer in now: too few roles, or the cash for the fee is missing.
[[nodiscard]] Refusal guildRefusal(const WorldState& world);

// Joins: pays the fee, sets `isSAG` and `memberSince`, and adds the monthly dues to the weekly items. Refuses
// below two roles and without the cash; does nothing for a member. Writes all that it changed.
Refusal joinGuild(Game& game);

}  // namespace tb
