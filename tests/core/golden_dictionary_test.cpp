// The keys of saves, their start values, and the form in which they are stored.

#include <format>
#include <gtest/gtest.h>
#include <type_traits>

#include "core/save.h"
#include "tests/core/typed_variables.h"
#include "tests/core/unusual_values.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"
#include "tests/sheet.h"

namespace tb {
namespace {

template <class T>
std::string valueText(const T& value) {
  if constexpr (std::is_same_v<T, test::Kept>) {
    return "kept";
  } else if constexpr (requires { value.size(); } && !std::is_same_v<T, std::string>) {
    return std::format("{} elements", value.size());
  } else {
    return test::textOf(value);
  }
}

// The kinds of a stored value and of what it contains: "packed [{filmId integer, title text}]".
std::string kindOf(const plist::Value& value) {
  if (value.as<bool>() != nullptr) return "boolean";
  if (value.as<std::int64_t>() != nullptr) return "integer";
  if (value.as<double>() != nullptr) return "real";
  if (value.as<std::string>() != nullptr) return "text";
  if (value.as<plist::Date>() != nullptr) return "date";
  if (const auto* const array = value.as<plist::Array>()) return "[" + kindOf(array->front()) + "]";
  if (const auto* const data = value.as<plist::Data>()) {
    const auto packed = plist::read(data->bytes);
    return packed ? "packed " + kindOf(*packed) : "data";
  }
  std::string fields;
  for (const auto& [name, field] : *value.as<plist::Dictionary>()) {
    fields += std::format("{}{} {}", fields.empty() ? "" : ", ", name, kindOf(field));
  }
  return "{" + fields + "}";
}

TEST(GoldenDictionary, EveryRow) {
  test::Sheet sheet("dictionary");
  test::forEachVariable(
      [&](std::string_view key, auto member, const auto& start, const auto& restart, Load when) {
        test::ScratchGame scratch;
        test::Unusual().fill(scratch.world.*member);
        saveChanges(scratch.game);
        const auto stored = scratch.store.value(key);
        sheet.line(std::format("{} starts at '{}', again at '{}', stored as {}{}", key, valueText(start),
                               valueText(restart), stored ? kindOf(*stored) : "nothing",
                               when == Load::never ? ", never loaded" : ""));
      });
  test::forEachRuntimeVariable([&](auto, const auto& start, const auto& restart) {
    sheet.line(std::format("in memory '{}', again '{}'", valueText(start), valueText(restart)));
  });
}

}  // namespace
}  // namespace tb
