// The keys of saves and their start values.

#include <format>
#include <gtest/gtest.h>
#include <type_traits>

#include "tests/core/typed_variables.h"
#include "tests/record_text.h"
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

TEST(GoldenDictionary, EveryRow) {
  test::Sheet sheet("dictionary");
  test::forEachVariable(
      [&]<auto Member>(std::string_view key, const auto& start, const auto& restart, Load when) {
        sheet.line(std::format("{} starts at '{}', again at '{}'{}", key, valueText(start),
                               valueText(restart), when == Load::never ? ", never loaded" : ""));
      });
  test::forEachRuntimeVariable([&]<auto Member>(const auto& start, const auto& restart) {
    sheet.line(std::format("in memory '{}', again '{}'", valueText(start), valueText(restart)));
  });
}

}  // namespace
}  // namespace tb
