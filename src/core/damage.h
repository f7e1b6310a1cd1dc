#pragma once

// What a load found damaged, and the notice about it.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/variables.h"

namespace tb {

// The damage of one variable.
struct Damage {
  const Variable* variable = nullptr;
  bool isWhole = false;        // nothing of it could be read
  std::size_t lost = 0;        // elements that could not be read
  bool isAtMost = false;       // `lost` is not exact: the number in a damaged piece is not known
  std::size_t impossible = 0;  // records of an unknown kind or there twice, which were left out
  std::size_t mended = 0;      // values that no rule can write, brought to the nearest possible one
  std::size_t columns = 0;     // columns that fell back to older values

  [[nodiscard]] bool any() const { return isWhole || lost + impossible + mended + columns > 0; }
};

// What was damaged and where, a line for each kind of damage; nothing if nothing was.
[[nodiscard]] std::optional<std::string> describe(std::span<const Damage> damages);

}  // namespace tb
