#pragma once

// An agent's terms, line by line.

#include "core/game.h"
#include "screens/view.h"

namespace tb {

// The terms of an agent; beside each is that of the agent signed now, tinted by which is better, when there
// is another one.
[[nodiscard]] view::Section agentTerms(const Game& game, const TalentAgent& agent);

}  // namespace tb
