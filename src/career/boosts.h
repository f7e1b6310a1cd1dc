#pragma once

// The one button by which the performer works on a project: rehearsing for the audition, then the
// performance, then promotion.

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

// What the button offers for a project now; nothing when there is nothing left to do.
[[nodiscard]] std::optional<Boost> boostOf(const WorldState& world, const Audition& project);

// Why the performer cannot press it now: the energy is missing.
[[nodiscard]] Refusal boostRefusal(const WorldState& world, const Boost& boost);

// Presses it for the project at `auditionIndex`: takes the energy and adds 1.5 points to the rating. A
// promotion sets `selectedAuditionIndex` and is then given in its interview. Refuses without the energy; does
// nothing when nothing is offered. Writes the energy and the list.
Refusal buyBoost(Game& game, std::size_t auditionIndex);

}  // namespace tb
