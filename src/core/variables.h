#pragma once

// The persisted rows of core/world_variables.def as data, for saving, loading and the restart.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/value_type.h"
#include "core/world_state.h"

namespace tb {

// When a stored value is read back.
enum class Load : std::uint8_t {
  atStart,  // at every launch
  never,    // saved but never read: reset to its start value at every launch
};

// A persisted row.
struct Variable {
  std::string_view key;
  std::size_t offset;     // in WorldState, in bytes
  const ValueType* type;  // of the variable, or of a list's elements
  bool isList;
  Load load;
  bool isKept;     // not changed by a restart
  double restart;  // a number's value after a restart; other types are emptied
  Range range;
};

// All persisted rows, in the order of the table.
[[nodiscard]] std::span<const Variable> variables();

// The address of the variable in the state: of the value if it is plain, of its ListBase if it is a list.
[[nodiscard]] void* memberOf(WorldState& world, const Variable& variable);
[[nodiscard]] ListBase& listOf(WorldState& world, const Variable& variable);

// Calls visit(value) with the plain value as its own type, one of six.
template <class Visit>
auto visitPlain(ValueType::Form form, void* value, Visit visit) {
  switch (form) {
    using enum ValueType::Form;
    case boolean:
      return visit(*static_cast<bool*>(value));
    case integer:
      return visit(*static_cast<std::int64_t*>(value));
    case real:
      return visit(*static_cast<double*>(value));
    case text:
      return visit(*static_cast<std::string*>(value));
    case data:
      return visit(*static_cast<plist::Data*>(value));
    case date:
      return visit(*static_cast<plist::Date*>(value));
    case optional:
    case list:
    case record:
      break;  // not a plain type
  }
  __builtin_unreachable();
}

// Sets every variable that is not `kept` to its restart value, including runtime variables.
void setRestartValues(WorldState& world);

}  // namespace tb
