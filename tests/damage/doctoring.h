#pragma once

// Worlds with values that no rule writes.

#include <functional>
#include <string>
#include <vector>

#include "core/world_state.h"

namespace tb::test {

struct Doctoring {
  std::string name;
  std::function<void(WorldState&)> apply;
};

// Each variable and each field of a record with each of its extreme values, lists that are empty, too long or
// not parallel, and records twice.
[[nodiscard]] std::vector<Doctoring> allDoctorings();

}  // namespace tb::test
