#pragma once

// The persisted rows of the table of variables (core/world_variables.def), as saves, loads and the restart
// see them.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/value_type.h"
#include "core/world_state.h"

namespace tb {

// When a stored value comes back into the state.
enum class Load : std::uint8_t {
  atStart,  // at every start
  never,    // written and never read: back to its start value at every launch
};

// One persisted row.
struct Variable {
  std::string_view key;
  std::size_t offset;     // in WorldState, in bytes
  const ValueType* type;  // of the variable; of a list, that of its elements
  bool isList;
  Load load;
  bool isKept;     // at a restart
  double restart;  // a number's value at a restart, where it is not kept; everything else is emptied
};

// All persisted rows, in the order of the table.
[[nodiscard]] std::span<const Variable> variables();

// Where the variable stands in the state: the variable itself when it is plain, its ListBase when it is a
// list.
[[nodiscard]] void* memberOf(WorldState& world, const Variable& variable);
[[nodiscard]] ListBase& listOf(WorldState& world, const Variable& variable);

// Calls visit(value) with a plain value as what it is. Variables are of six plain types.
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
      break;  // no plain value is of such a type
  }
  __builtin_unreachable();
}

// Sets every variable that a restart does not keep to its value at a restart, run-time variables included.
void setRestartValues(WorldState& world);

}  // namespace tb
