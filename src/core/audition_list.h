#pragma once

#include <cstddef>
#include <optional>

#include "core/find.h"
#include "core/world_state.h"

namespace tb {

// Where in saveAllAuditionList the project with a film id stands; nothing when it is not there.
[[nodiscard]] inline std::optional<std::size_t> auditionIndex(const WorldState& world, std::int64_t filmId) {
  return find(world.saveAllAuditionList, &Audition::filmId, filmId);
}

}  // namespace tb
