#pragma once

// The one game state: a flat set of named variables and record lists, each named after the key under which
// it is saved. Its members, how each is loaded and what a restart does to each all come from one table,
// core/world_variables.def.

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/list.h"
#include "core/news.h"
#include "core/property_list.h"
#include "core/records/records.h"
#include "core/value_type.h"

namespace tb {

using Int = std::int64_t;
using Real = double;
using Flag = bool;
using String = std::string;
using Image = plist::Data;
using IntList = List<std::int64_t>;
using RealList = List<double>;
using TextList = List<std::string>;

struct WorldState {
#define VARIABLE(Type, key, start, restart, load) Type key = start;
#define RECORDS(Record, key, restart, load) List<Record> key;
#define RUNTIME(Type, name, start, restart) Type name = start;
#include "core/world_variables.def"
};

// When a stored value comes back into the state.
enum class Load : std::uint8_t {
  atStart,  // by the world load, at every start
  lists,    // by the list loads that follow it
  byOwner,  // only by the rule that owns it, when its screen or step needs it
  never,    // written and never read: back to its start value at every launch
};

// A restart value of `kept` says that a restart leaves the variable as it is. (Made with an argument only, so
// that `{}` in the table is always a value of the variable's own type.)
struct Kept {
  explicit constexpr Kept(bool) {}
};
inline constexpr Kept kept{true};

namespace detail {

// A value column of the table as a value of the row's type; `kept` stays `kept`.
template <class Type>
Type rowValue(Type value) {
  return value;
}
template <class Type>
Kept rowValue(Kept value) {
  return value;
}

}  // namespace detail

// A persisted row of the table as saves and loads see it.
struct Variable {
  std::string_view key;
  std::size_t offset;     // in WorldState, in bytes
  const ValueType* type;  // of the variable; of a list, that of its elements
  bool isList;
  Load load;
  bool isKept;  // at a restart
};

namespace detail {

template <class Type>
inline constexpr bool isList = std::derived_from<Type, ListBase>;

template <class Type>
consteval const ValueType* savedType() {
  if constexpr (isList<Type>) {
    return &typeOf<typename Type::value_type>;
  } else {
    return &typeOf<Type>;
  }
}

}  // namespace detail

// All persisted rows, in the order of the table.
inline constexpr auto variables = std::to_array<Variable>({
#define VARIABLE(Type, key, start, restart, load) \
  {#key,                                          \
   __builtin_offsetof(WorldState, key),           \
   detail::savedType<Type>(),                     \
   detail::isList<Type>,                          \
   Load::load,                                    \
   std::same_as<decltype(detail::rowValue<Type>(restart)), Kept>},
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"
});

namespace detail {

enum VariablePosition : std::size_t {
#define VARIABLE(Type, key, start, restart, load) positionOf_##key,
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"
};

}  // namespace detail

// The row of a member of the state; nothing for a run-time one.
template <auto Member>
inline constexpr const Variable* variableOf = nullptr;

#define VARIABLE(Type, key, start, restart, load) \
  template <>                                     \
  inline constexpr const Variable* variableOf<&WorldState::key> = &variables[detail::positionOf_##key];
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"

// Calls visit.template operator()<Member>(start, restart, load) for every persisted row of the table, in its
// order; `restart` is a value of the variable's type, or `kept`.
template <class Visit>
void forEachVariable(Visit&& visit) {
#define VARIABLE(Type, key, start, restart, load)                            \
  visit.template operator()<&WorldState::key>(detail::rowValue<Type>(start), \
                                              detail::rowValue<Type>(restart), Load::load);
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"
}

// The same for the run-time rows, which are never saved: visit.template operator()<Member>(start, restart).
template <class Visit>
void forEachRuntimeVariable(Visit&& visit) {
#define VARIABLE(Type, key, start, restart, load)
#define RECORDS(Record, key, restart, load)
#define RUNTIME(Type, name, start, restart)                                   \
  visit.template operator()<&WorldState::name>(detail::rowValue<Type>(start), \
                                               detail::rowValue<Type>(restart));
#include "core/world_variables.def"
}

}  // namespace tb
