#include "core/format.h"

#include <charconv>

namespace tb {

namespace {

// Enough for the largest double with nine digits after the decimal point.
constexpr std::size_t maxCharacters = 330;

template <class Number, class... How>
void append(std::string& out, Number number, How... how) {
  std::array<char, maxCharacters> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number, how...).ptr;
  out.append(text.data(), end);
}

void appendPlain(std::string& out, const FormatValue& value) {
  switch (value.kind) {
    case FormatValue::Kind::text:
      out += value.text;
      break;
    case FormatValue::Kind::whole:
      append(out, value.whole);
      break;
    case FormatValue::Kind::figure:
      append(out, value.figure);
      break;
  }
}

}  // namespace

std::string formatValues(std::string_view text, std::span<const FormatValue> values) {
  std::string out;
  std::size_t used = 0;
  while (!text.empty()) {
    const FormatField field = nextFormatField(text);
    out += field.before;
    if (field.style == FormatField::Style::none) break;
    const FormatValue& value = values[used++];
    if (field.style == FormatField::Style::fixed || field.style == FormatField::Style::fixedOfValue) {
      const bool ofValue = field.style == FormatField::Style::fixedOfValue;
      const int digits = ofValue ? static_cast<int>(values[used++].whole) : field.digits;
      append(out, value.figure, std::chars_format::fixed, digits);
    } else {
      if (field.style == FormatField::Style::withSign && value.whole >= 0) out += '+';
      appendPlain(out, value);
    }
  }
  return out;
}

}  // namespace tb
