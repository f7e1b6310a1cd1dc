#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// Opens a project's page, which differs before and after its release. Does nothing when there is no project
// with this id.
void openProject(Stage& stage, std::int64_t filmId);

// The same as an operation; an empty operation when there is no such project.
[[nodiscard]] Operation leadingToProject(const WorldState& world, std::int64_t filmId);

// A row that opens the project and says how far it is.
[[nodiscard]] view::Row projectRow(const WorldState& world, const Audition& project);

}  // namespace tb
