#pragma once

#include <cstddef>
#include <optional>

#include "core/world_state.h"

namespace tb {

// Where in saveAllAuditionList the project with a film id stands; nothing when it is not there.
[[nodiscard]] inline std::optional<std::size_t> auditionIndex(const WorldState& world, std::int64_t filmId) {
  const List<Audition>& auditions = world.saveAllAuditionList;
  for (std::size_t index = 0; index < auditions.size(); ++index) {
    if (auditions[index].filmId == filmId) return index;
  }
  return std::nullopt;
}

}  // namespace tb
