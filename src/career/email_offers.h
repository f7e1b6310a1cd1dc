#pragma once

// The offers that come by e-mail to performers with many booked principal roles. In a week in which one can
// come, it comes with a chance of 5 in 11.

#include <cstddef>
#include <cstdint>

#include "core/game.h"

namespace tb {

// Booked principal roles without which an offer does not come, and the fame for a saga.
inline constexpr std::size_t investorRoles = 15;
inline constexpr std::size_t stakeRoles = 15;
inline constexpr std::size_t sagaRoles = 25;
inline constexpr std::int64_t sagaFame = 61;

// A film producer seeks an investor: every tenth week of the year.
void investorOfferStep(Game& game);

// A role with a stake instead of a fee, through the signed agent: every 13th week.
void backendOfferStep(Game& game);

// The lead of a saga, through the signed agent: every 16th week.
void franchiseOfferStep(Game& game);

}  // namespace tb
