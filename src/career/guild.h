#pragma once

// The actors' guild: a one-time initiation fee, dues of 3 % of earnings, and access to union roles.

#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr double guildInitiationFee = 3000;      // dollars
inline constexpr std::int64_t rolesForEligibility = 2;  // principal roles booked

// The number of principal roles booked.
[[nodiscard]] std::int64_t guildEligibility(const WorldState& world);

// Why the performer cannot join: too few principal roles, or not enough cash.
[[nodiscard]] Refusal guildRefusal(const WorldState& world);

// Joins the guild: pays the fee, sets `isSAG` and `memberSince`, and adds the dues to the weekly items.
// Refused with fewer than two roles or without the cash; does nothing for a member.
Refusal joinGuild(Game& game);

}  // namespace tb
