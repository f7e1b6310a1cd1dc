#include "core/text.h"

namespace tb {

namespace {

// The code point of the two-byte UTF-8 sequence at `place`, or 0 when there is none.
char32_t twoByteLetter(std::string_view text, std::size_t place) {
  if (place + 1 >= text.size()) return 0;
  const auto lead = static_cast<unsigned char>(text[place]);
  const auto next = static_cast<unsigned char>(text[place + 1]);
  if (lead < 0xC3 || lead > 0xC5 || (next & 0xC0) != 0x80) return 0;
  return static_cast<char32_t>((lead & 0x1F) << 6 | (next & 0x3F));
}

// Latin-1 and Latin Extended-A, where small letters have a fixed distance from their capitals.
char32_t capital(char32_t letter) {
  if (letter >= 0xE0 && letter <= 0xFE && letter != 0xF7) return letter - 0x20;
  if (letter == 0xFF) return 0x178;
  const bool evenCapitals = (letter >= 0x100 && letter <= 0x137 && letter != 0x130 && letter != 0x131) ||
                            (letter >= 0x14A && letter <= 0x177);
  const bool oddCapitals = (letter >= 0x139 && letter <= 0x148) || (letter >= 0x179 && letter <= 0x17E);
  if (evenCapitals && letter % 2 == 1) return letter - 1;
  if (oddCapitals && letter % 2 == 0) return letter - 1;
  return letter;
}

}  // namespace

std::string upperCase(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  for (std::size_t place = 0; place < text.size(); ++place) {
    const char c = text[place];
    if (const char32_t letter = twoByteLetter(text, place); letter != 0) {
      const char32_t raised = capital(letter);
      upper += static_cast<char>(0xC0 | (raised >> 6));
      upper += static_cast<char>(0x80 | (raised & 0x3F));
      place += 1;
    } else {
      upper += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
  }
  return upper;
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string capitalized(std::string text) {
  text.replace(0, 1, upperCase(text.substr(0, 1)));
  return text;
}

std::string trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::string joinedWithAnd(std::span<const std::string> parts) {
  std::string joined;
  for (std::size_t index = 0; index < parts.size(); ++index) {
    if (index > 0) joined += index + 1 == parts.size() ? " and " : ", ";
    joined += parts[index];
  }
  return joined;
}

std::string plural(std::int64_t count, std::string_view noun) {
  return std::string(noun) + (count == 1 ? "" : "s");
}

std::string counted(std::int64_t count, std::string_view noun) {
  return std::to_string(count) + " " + plural(count, noun);
}

std::string fill(std::string_view row, std::initializer_list<Filling> values) {
  std::string filled;
  while (!row.empty()) {
    const std::size_t open = row.find('{');
    filled += row.substr(0, open);
    if (open == std::string_view::npos) break;
    row.remove_prefix(open);

    std::size_t taken = 1;
    std::string_view inserted = row.substr(0, 1);
    for (const auto& [name, value] : values) {
      if (row.substr(1).starts_with(name) && row.substr(1 + name.size()).starts_with('}')) {
        taken = name.size() + 2;
        inserted = value;
        break;
      }
    }
    filled += inserted;
    row.remove_prefix(taken);
  }
  return filled;
}

}  // namespace tb
