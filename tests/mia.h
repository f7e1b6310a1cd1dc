#pragma once

// A partner for journeys.

#include "core/records/life.h"

namespace tb::test {

// Mia, together with the performer since week 2. `state` is a bond, `meter` her relationship meter.
inline Matches mia(std::int64_t state, double meter) {
  return {.matchId = 1,
          .name = "Mia",
          .matchImage = "woman (4).png",
          .weekStartedDating = 2,
          .energyBonus = 3,
          .relationshipStatus = meter,
          .age = 30,
          .maintenance = 40,
          .weeklyEarnings = 900,
          .relationshipState = state,
          .timeToPropose = 52};
}

}  // namespace tb::test
