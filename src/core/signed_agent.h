#pragma once

#include <cstddef>
#include <optional>

#include "core/world_state.h"

namespace tb {

// The index in saveAllTalentAgents of the first agent with isSigned 1; nothing when none is signed.
[[nodiscard]] inline std::optional<std::size_t> signedAgent(const WorldState& world) {
  const List<TalentAgent>& agents = world.saveAllTalentAgents;
  for (std::size_t index = 0; index < agents.size(); ++index) {
    if (agents[index].isSigned == 1) return index;
  }
  return std::nullopt;
}

// That agent's record; null when none is signed.
[[nodiscard]] inline const TalentAgent* currentAgent(const WorldState& world) {
  const auto index = signedAgent(world);
  return index ? &world.saveAllTalentAgents[*index] : nullptr;
}

}  // namespace tb
