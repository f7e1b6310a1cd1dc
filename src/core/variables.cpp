#include "core/variables.h"

#include <array>
#include <concepts>
#include <type_traits>

#include "core/fields/fields.h"

namespace tb {

namespace {

template <class Type>
constexpr bool isList = std::derived_from<Type, ListBase>;

template <class Type>
consteval const ValueType* savedType() {
  if constexpr (isList<Type>) {
    return &typeOf<typename Type::value_type>;
  } else {
    return &typeOf<Type>;
  }
}

// The value `kept` in the restart column: the restart does not change the variable. (Its constructor takes an
// argument so that `{}` in the table always means a value of the variable's own type.)
struct Kept {
  explicit constexpr Kept(bool) {}
};
constexpr Kept kept{true};

// Converts a value of the table to the row's type; `kept` stays `kept`.
template <class Type>
constexpr Type rowValue(Type value) {
  return value;
}
template <class Type>
constexpr Kept rowValue(Kept value) {
  return value;
}

// The restart value of a number; 0 for other types. `column` returns the value and is called for numbers
// only.
template <class Type, class Column>
consteval double restartNumber(Column column) {
  if constexpr (std::is_arithmetic_v<Type> && !std::same_as<decltype(column()), Kept>) {
    return static_cast<double>(column());
  } else {
    return 0;
  }
}

constexpr auto rows = std::to_array<Variable>({
#define VARIABLE(Type, key, start, restart, load, ...)          \
  {#key,                                                        \
   __builtin_offsetof(WorldState, key),                         \
   savedType<Type>(),                                           \
   isList<Type>,                                                \
   Load::load,                                                  \
   std::same_as<decltype(rowValue<Type>(restart)), Kept>,       \
   restartNumber<Type>([] { return rowValue<Type>(restart); }), \
   Range{__VA_ARGS__}},
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"
});

// A list and its ListBase have the same address.
static_assert(std::is_standard_layout_v<RealList> && sizeof(RealList) == sizeof(ListBase));

template <class Type>
void set(Type& variable, Type value) {
  variable = std::move(value);
}
template <class Type>
void set(Type&, Kept) {}

void restartNumberOrEmpty(WorldState& world, const Variable& variable) {
  if (variable.isList) return listOf(world, variable).clear();
  visitPlain(variable.type->form, memberOf(world, variable), [&]<class Type>(Type& value) {
    if constexpr (std::is_arithmetic_v<Type>) {
      value = static_cast<Type>(variable.restart);
    } else {
      value = {};
    }
  });
}

}  // namespace

std::span<const Variable> variables() { return rows; }

void* memberOf(WorldState& world, const Variable& variable) {
  return reinterpret_cast<std::byte*>(&world) + variable.offset;
}

ListBase& listOf(WorldState& world, const Variable& variable) {
  return *static_cast<ListBase*>(memberOf(world, variable));
}

void setRestartValues(WorldState& world) {
  for (const Variable& variable : rows) {
    if (!variable.isKept) restartNumberOrEmpty(world, variable);
  }
#define VARIABLE(Type, key, start, restart, load, ...)
#define RECORDS(Record, key, restart, load)
#define RUNTIME(Type, name, start, restart) set<Type>(world.name, rowValue<Type>(restart));
#include "core/world_variables.def"
}

}  // namespace tb
