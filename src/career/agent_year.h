#pragma once

// What the signed agent did in a year.

#include <cstdint>

#include "core/game.h"

namespace tb {

struct AgentYear {
  std::int64_t sent = 0;    // projects that came through the agent
  std::int64_t booked = 0;  // of those, the roles that the performer has
  double commission = 0;    // dollars, on royalties
};

// The current year of the game.
[[nodiscard]] AgentYear agentYear(const WorldState& world, const TalentAgent& agent);

}  // namespace tb
