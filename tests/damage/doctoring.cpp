#include "tests/damage/doctoring.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "core/variables.h"

namespace tb::test {

namespace {

using Form = ValueType::Form;

constexpr int kinds = 8;  // of extreme values

// Sets the value to its extreme number `kind`.
void setExtreme(const ValueType& type, void* value, int kind) {
  const auto at = static_cast<std::size_t>(kind);
  switch (type.form) {
    case Form::boolean:
      *static_cast<bool*>(value) = kind % 2 != 0;
      return;
    case Form::integer: {
      using Limits = std::numeric_limits<std::int64_t>;
      constexpr std::int64_t values[kinds] = {Limits::min(),      -1,           0, 1, 99, 1'000'000'000,
                                              10'000'000'000'000, Limits::max()};
      *static_cast<std::int64_t*>(value) = values[at];
      return;
    }
    case Form::real: {
      constexpr double infinity = std::numeric_limits<double>::infinity();
      const double values[kinds] = {std::nan(""), -infinity, -1e13, -1, 0, 1e9, 1e13, infinity};
      *static_cast<double*>(value) = values[at];
      return;
    }
    case Form::text: {
      const std::string values[kinds] = {"",     std::string(100'000, 'W'), "{title} {", "\xFF\xC3", "🎬",
                                         "a\nb", std::string(300, '/'),     "%s"};
      *static_cast<std::string*>(value) = values[at];
      return;
    }
    case Form::data:
      static_cast<plist::Data*>(value)->bytes.assign(at * 10'000, std::byte{7});
      return;
    case Form::date:
      return setExtreme({.form = Form::real, .size = sizeof(double)}, value, kind);
    case Form::optional:
    case Form::list:
      type.elements.cut != nullptr ? type.elements.cut(value, kind < 2 ? 0 : 1) : void();
      if (kind > 0) setExtreme(*type.element, type.elements.append(value), kind);
      return;
    case Form::record:
      for (const FieldType& field : type.fields) {
        setExtreme(*field.type, static_cast<std::byte*>(value) + field.offset, kind);
      }
  }
}

void addElement(WorldState& world, const Variable& variable, int kind) {
  ListBase& list = listOf(world, variable);
  const std::int64_t last = list.empty() ? 0 : list.pieceAt(list.size() - 1);
  setExtreme(*variable.type, list.addLoaded(last), kind);
  list.saveWhole();
}

void setField(WorldState& world, const Variable& variable, const FieldType& field, int kind) {
  ListBase& list = listOf(world, variable);
  if (list.empty()) list.addLoaded(0);
  for (std::size_t index = 0; index < list.size(); ++index) {
    setExtreme(*field.type, static_cast<std::byte*>(list.loadedElement(index)) + field.offset, kind);
  }
  list.saveWhole();
}

void addToList(std::vector<Doctoring>& all, const Variable& variable) {
  const std::string key(variable.key);
  all.push_back({key + " empty", [&variable](WorldState& world) { listOf(world, variable).clear(); }});
  all.push_back({key + " long", [&variable](WorldState& world) {
                   const int more = variable.type->form == Form::record ? 300 : 20'000;
                   for (int count = 0; count < more; ++count) {
                     static_cast<void>(listOf(world, variable).addLoaded(0));
                   }
                   listOf(world, variable).saveWhole();
                 }});
  for (int kind = 0; kind < kinds; ++kind) {
    all.push_back({key + " with " + std::to_string(kind),
                   [&variable, kind](WorldState& world) { addElement(world, variable, kind); }});
    for (const FieldType& field : variable.type->fields) {
      all.push_back(
          {key + "." + std::string(field.name) + " " + std::to_string(kind),
           [&variable, &field, kind](WorldState& world) { setField(world, variable, field, kind); }});
    }
  }
}

}  // namespace

std::vector<Doctoring> allDoctorings() {
  std::vector<Doctoring> all;
  for (const Variable& variable : variables()) {
    if (variable.load == Load::never) continue;
    if (variable.isList) {
      addToList(all, variable);
      continue;
    }
    for (int kind = 0; kind < kinds; ++kind) {
      all.push_back(
          {std::string(variable.key) + " " + std::to_string(kind), [&variable, kind](WorldState& world) {
             setExtreme(*variable.type, memberOf(world, variable), kind);
           }});
    }
  }
  return all;
}

}  // namespace tb::test
