#pragma once

// Julien's curriculum: 47 drama classes in four levels.

#include <array>
#include <cstdint>
#include <string_view>

namespace tb {

struct JulliardClass {
  std::int64_t id;
  std::string_view title;
  std::string_view classCode;
  double percentage;        // experience points on completion
  std::int64_t classLevel;  // 1 to 4
};

extern const std::array<JulliardClass, 47> julliardClasses;

// The class with this id, or null.
[[nodiscard]] const JulliardClass* classWithId(std::int64_t id);

}  // namespace tb
