#pragma once

// A small std::format: tb::format("{} of {}", done, all). Its output is the same as std::format's, and a
// field that does not match its value does not compile. std::format itself would be a tenth of the page's
// program and cost two seconds of compile time per file.
//
//   {}       a text, a whole number, or a figure with as few digits as tell it from its neighbors
//   {:+}     a whole number with its sign
//   {:.1f}   a figure with so many digits after the point, 0 to 9; {:.{}f} takes their number from the values
//
// A literal brace cannot be written.

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace tb {

struct FormatField {
  enum class Style : std::uint8_t { none, plain, withSign, fixed, fixedOfValue, unknown };
  std::string_view before;  // the text before it
  Style style = Style::none;
  int digits = 0;  // after the decimal point
};

// Parses the next field and removes it from the text.
constexpr FormatField nextFormatField(std::string_view& text) {
  using enum FormatField::Style;
  const std::size_t open = text.find('{');
  FormatField field{.before = text.substr(0, open)};
  text.remove_prefix(field.before.size());
  const auto take = [&](std::size_t length, FormatField::Style style) {
    field.style = style;
    text.remove_prefix(length);
  };
  if (text.empty()) return field;
  if (text.starts_with("{}")) {
    take(2, plain);
  } else if (text.starts_with("{:+}")) {
    take(4, withSign);
  } else if (text.starts_with("{:.{}f}")) {
    take(7, fixedOfValue);
  } else if (text.size() >= 6 && text.starts_with("{:.") && text.substr(4).starts_with("f}")) {
    field.digits = text[3] - '0';
    take(6, field.digits >= 0 && field.digits <= 9 ? fixed : unknown);
  } else {
    field.style = unknown;
  }
  return field;
}

class FormatValue {
 public:
  enum class Kind : std::uint8_t { text, whole, figure };

  template <class T>
  static constexpr bool isWhole =
      std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, char8_t>;
  template <class T>
  static constexpr Kind kindOf = isWhole<T>               ? Kind::whole
                                 : std::floating_point<T> ? Kind::figure
                                                          : Kind::text;

  template <class T>
  FormatValue(const T& value) : kind(kindOf<T>) {
    if constexpr (kindOf<T> == Kind::whole) {
      whole = static_cast<std::int64_t>(value);
    } else if constexpr (kindOf<T> == Kind::figure) {
      figure = static_cast<double>(value);
    } else {
      text = value;
    }
  }

  Kind kind;
  std::int64_t whole = 0;
  double figure = 0;
  std::string_view text;
};

template <class... Values>
class FormatText {
 public:
  consteval FormatText(const char* text) : text(text) {
    constexpr std::array<FormatValue::Kind, sizeof...(Values)> kinds = {FormatValue::kindOf<Values>...};
    if (!fits(text, kinds)) fieldsAndValuesDiffer();
  }

  std::string_view text;

 private:
  static void fieldsAndValuesDiffer() {}  // not constexpr: a call in a constant expression fails to compile

  static consteval bool fits(std::string_view text, std::span<const FormatValue::Kind> kinds) {
    using Kind = FormatValue::Kind;
    std::size_t used = 0;
    const auto next = [&](Kind kind) { return used < kinds.size() && kinds[used++] == kind; };
    while (!text.empty()) {
      switch (nextFormatField(text).style) {
        case FormatField::Style::none:
          break;
        case FormatField::Style::plain:
          if (used++ >= kinds.size()) return false;
          break;
        case FormatField::Style::withSign:
          if (!next(Kind::whole)) return false;
          break;
        case FormatField::Style::fixed:
          if (!next(Kind::figure)) return false;
          break;
        case FormatField::Style::fixedOfValue:
          if (!next(Kind::figure) || !next(Kind::whole)) return false;
          break;
        case FormatField::Style::unknown:
          return false;
      }
    }
    return used == kinds.size();
  }
};

[[nodiscard]] std::string formatValues(std::string_view text, std::span<const FormatValue> values);

template <class... Values>
[[nodiscard]] std::string format(std::type_identity_t<FormatText<std::remove_cvref_t<Values>...>> text,
                                 const Values&... values) {
  return formatValues(text.text, std::array<FormatValue, sizeof...(Values)>{FormatValue(values)...});
}

}  // namespace tb
