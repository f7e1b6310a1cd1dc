#pragma once

// The actors' guild's dues: 3 % of earnings, up to a total of 750,000 dollars in a career.

#include "core/world_state.h"

namespace tb {

inline constexpr double guildDuesRate = 0.03;
inline constexpr double guildDuesCap = 750'000;

// Returns the dues on `gross` dollars and adds them to `workDuesPaidSAG`; 0 once the cap is reached. The
// payment that crosses the cap pays its dues in full. The caller decides whether non-members owe dues.
inline double chargeGuildDues(WorldState& world, double gross) {
  if (world.workDuesPaidSAG >= guildDuesCap) return 0;
  const double dues = gross * guildDuesRate;
  world.workDuesPaidSAG += dues;
  return dues;
}

}  // namespace tb
