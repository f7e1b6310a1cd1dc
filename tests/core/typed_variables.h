#pragma once

// The table of variables with static types, for tests that compare values (core/variables.h has it as data).

#include <string_view>

#include "core/variables.h"

namespace tb::test {

// Restart value: the restart does not change the variable.
struct Kept {
  explicit constexpr Kept(bool) {}
};
inline constexpr Kept kept{true};

template <class Type>
Type rowValue(Type value) {
  return value;
}
template <class Type>
Kept rowValue(Kept value) {
  return value;
}

// Calls visit(key, member, start, restart, load) for every persisted row, in the order of the table;
// `restart` is a value of the variable's type, or `kept`. `member` points to a member of WorldState.
template <class Visit>
void forEachVariable(Visit&& visit) {
#define VARIABLE(Type, key, start, restart, load, ...) \
  visit(std::string_view(#key), &WorldState::key, rowValue<Type>(start), rowValue<Type>(restart), Load::load);
#define RECORDS(Record, key, restart, load) VARIABLE(List<Record>, key, {}, restart, load)
#define RUNTIME(Type, name, start, restart)
#include "core/world_variables.def"
}

// The same for the run-time rows: visit(member, start, restart).
template <class Visit>
void forEachRuntimeVariable(Visit&& visit) {
#define VARIABLE(Type, key, start, restart, load, ...)
#define RECORDS(Record, key, restart, load)
#define RUNTIME(Type, name, start, restart) \
  visit(&WorldState::name, rowValue<Type>(start), rowValue<Type>(restart));
#include "core/world_variables.def"
}

}  // namespace tb::test
