#include "shells/web/double_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tb {

namespace {

// Enough for the longest double and 700 digits after the decimal point.
using Text = std::array<char, 1024>;

std::string_view print(Text& text, const char* format, int precision, double value) {
  const int length = std::snprintf(text.data(), text.size(), format, precision, value);
  if (length < 0 || static_cast<std::size_t>(length) >= text.size()) return {};
  return {text.data(), static_cast<std::size_t>(length)};
}

std::to_chars_result copy(std::string_view text, char* first, char* last) {
  if (text.empty() || last - first < static_cast<std::ptrdiff_t>(text.size())) {
    return {last, std::errc::value_too_large};
  }
  return {std::ranges::copy(text, first).out, std::errc{}};
}

// The shortest scientific notation: adds digits until the text parses to the same double.
std::string_view shortestScientific(Text& text, double value) {
  constexpr int maxDigits = 16;  // after the decimal point; enough to distinguish all doubles
  for (int precision = 0; precision < maxDigits; ++precision) {
    const std::string_view tried = print(text, "%.*e", precision, value);
    if (std::strtod(text.data(), nullptr) == value) return tried;
  }
  return print(text, "%.*e", maxDigits, value);
}

// The same digits in fixed notation.
std::string_view inFixed(Text& text, std::string_view scientific, double value) {
  const std::size_t mark = scientific.find('e');
  const std::size_t point = scientific.find('.');
  const int behindPoint = point == std::string_view::npos ? 0 : static_cast<int>(mark - point - 1);
  const int exponent = std::atoi(scientific.data() + mark + 1);
  return print(text, "%.*f", std::max(behindPoint - exponent, 0), value);
}

}  // namespace

std::to_chars_result writeShortest(char* first, char* last, double value) {
  Text scientificText;
  if (!std::isfinite(value)) return copy(print(scientificText, "%.*f", 0, value), first, last);
  const std::string_view scientific = shortestScientific(scientificText, value);
  Text fixedText;
  const std::string_view fixed = inFixed(fixedText, scientific, value);
  return copy(fixed.size() <= scientific.size() ? fixed : scientific, first, last);
}

std::to_chars_result writeShortest(char* first, char* last, double value, std::chars_format notation) {
  if (!std::isfinite(value)) return writeShortest(first, last, value);
  Text text;
  const std::string_view scientific = shortestScientific(text, value);
  if (notation == std::chars_format::scientific) return copy(scientific, first, last);
  Text fixedText;
  const std::string_view fixed = inFixed(fixedText, scientific, value);
  if (notation == std::chars_format::fixed) return copy(fixed, first, last);
  // The general notation is fixed for values from 0.0001 to 999,999.
  const int exponent = std::atoi(scientific.data() + scientific.find('e') + 1);
  return copy(exponent >= -4 && exponent < 6 ? fixed : scientific, first, last);
}

std::to_chars_result writePrecise(char* first, char* last, double value, std::chars_format notation,
                                  int precision) {
  const char* const format = notation == std::chars_format::fixed        ? "%.*f"
                             : notation == std::chars_format::scientific ? "%.*e"
                                                                         : "%.*g";
  Text text;
  return copy(print(text, format, precision, value), first, last);
}

}  // namespace tb
