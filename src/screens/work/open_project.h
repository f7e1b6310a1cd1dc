#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// Opens the page of a project: before its release what is to be done for it, after it what came of it. Does
// nothing when there is no such project.
void openProject(Stage& stage, std::int64_t filmId);

// The same as an operation; an empty one when there is no such project now.
[[nodiscard]] Operation leadingToProject(const WorldState& world, std::int64_t filmId);

}  // namespace tb
