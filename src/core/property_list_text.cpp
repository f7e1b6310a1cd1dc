#include "core/property_list_text.h"

#include <cstdint>

namespace tb::plist {
namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

// What a lead byte says: how many bytes follow, and the range of the first of them. The narrow ranges exclude
// overlong forms, surrogates and code points above U+10FFFF.
struct Lead {
  std::uint8_t first, last;
  int following;
  std::uint8_t low, high;
};
constexpr Lead leads[] = {
    {0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF}, {0xE1, 0xEC, 2, 0x80, 0xBF},
    {0xED, 0xED, 2, 0x80, 0x9F}, {0xEE, 0xEF, 2, 0x80, 0xBF}, {0xF0, 0xF0, 3, 0x90, 0xBF},
    {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F},
};

void appendCharacter(std::string& text, char32_t character) {
  const auto add = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    add(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | character >> 18);
    add(0x80 | (character >> 12 & 0x3F));
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

}  // namespace

char32_t readCharacter(std::string_view& text) {
  const auto byte = static_cast<std::uint8_t>(text.front());
  text.remove_prefix(1);
  if (byte < 0x80) return byte;
  for (const Lead& lead : leads) {
    if (byte < lead.first || byte > lead.last) continue;
    char32_t character = byte & (0x3F >> lead.following);
    for (int taken = 0; taken < lead.following; ++taken) {
      if (text.empty()) return replacementCharacter;
      const auto next = static_cast<std::uint8_t>(text.front());
      const bool fits = taken == 0 ? next >= lead.low && next <= lead.high : (next & 0xC0) == 0x80;
      if (!fits) return replacementCharacter;
      character = character << 6 | (next & 0x3F);
      text.remove_prefix(1);
    }
    return character;
  }
  return replacementCharacter;
}

bool isAscii(std::string_view text) {
  unsigned char all = 0;
  for (const char byte : text) all |= static_cast<unsigned char>(byte);
  return all < 0x80;
}

std::u16string toUtf16(std::string_view utf8) {
  std::u16string units;
  units.reserve(utf8.size());
  while (!utf8.empty()) {
    const char32_t character = readCharacter(utf8);
    if (character < 0x10000) {
      units.push_back(static_cast<char16_t>(character));
    } else {
      units.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 | (character & 0x3FF)));
    }
  }
  return units;
}

bool appendUtf8(std::string& text, std::span<const std::byte> units) {
  const auto unitAt = [&](std::size_t index) {
    return std::to_integer<char32_t>(units[index]) << 8 | std::to_integer<char32_t>(units[index + 1]);
  };
  const auto isHigh = [](char32_t unit) { return (unit & 0xFC00) == 0xD800; };
  const auto isLow = [](char32_t unit) { return (unit & 0xFC00) == 0xDC00; };
  for (std::size_t index = 0; index + 1 < units.size(); index += 2) {
    char32_t character = unitAt(index);
    if (isLow(character)) return false;
    if (isHigh(character)) {
      index += 2;
      if (index + 1 >= units.size() || !isLow(unitAt(index))) return false;
      character = 0x10000 + ((character & 0x3FF) << 10) + (unitAt(index) & 0x3FF);
    }
    appendCharacter(text, character);
  }
  return true;
}

}  // namespace tb::plist
