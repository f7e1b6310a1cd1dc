#pragma once

// What the actors' guild takes of a performer's earnings: 3 %, until 750,000 dollars were paid in a career.

#include "core/world_state.h"

namespace tb {

inline constexpr double guildDuesRate = 0.03;
inline constexpr double guildDuesCap = 750'000;

// The dues on `gross` dollars, added to `workDuesPaidSAG`; 0 once the cap is reached. The payment that
// reaches it is not split: its dues are taken in full. Whoever pays says whether outsiders to the guild owe
// them, and writes the sum.
inline double takeGuildDues(WorldState& world, double gross) {
  if (world.workDuesPaidSAG >= guildDuesCap) return 0;
  const double dues = gross * guildDuesRate;
  world.workDuesPaidSAG += dues;
  return dues;
}

}  // namespace tb
