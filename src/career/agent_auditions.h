#pragma once

// The work that the signed agent finds.

#include <cstdint>
#include <optional>

#include "core/game.h"

namespace tb {

// Every few weeks of the year, by the agent's beat: the agent sends one project from the casting network, as
// a submission, as an audition or as a booking. A better agent gets the performer further.
void agentAuditionStep(Game& game);

// Weeks until the agent sends the next one, 1 and up; nothing without an agent who sends any.
[[nodiscard]] std::optional<std::int64_t> weeksToNextAudition(const WorldState& world);

}  // namespace tb
