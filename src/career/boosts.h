#pragma once

// The button to work on a project: rehearse before the audition, perform before the wrap, then promote.

#include <cstdint>
#include <optional>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

enum class BoostKind : std::uint8_t { rehearse, performance, promote };

struct Boost {
  BoostKind kind;
  std::int64_t energyPrice;  // points
};

// The boost available for a project now, if any.
[[nodiscard]] std::optional<Boost> boostOf(const WorldState& world, const Audition& project);

// Why it cannot be bought: not enough energy.
[[nodiscard]] Refusal boostRefusal(const WorldState& world, const Boost& boost);

// Buys the boost of a project: spends the energy and adds 1.5 points to the rating. A promotion only sets
// `selectedAuditionIndex`, for the interview screen. Refused without enough energy; does nothing when no
// boost is available.
Refusal buyBoost(Game& game, std::int64_t filmId);

}  // namespace tb
