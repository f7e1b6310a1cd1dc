#pragma once

// Text in a property list: UTF-8 in memory, ASCII or big-endian UTF-16 in the file.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace tb::plist {

// Reads the first character of `utf8`, which must not be empty, and removes its bytes. Ill-formed input gives
// one U+FFFD for each maximal invalid sequence.
char32_t readCharacter(std::string_view& utf8);

[[nodiscard]] bool isAscii(std::string_view text);

// Ill-formed bytes become U+FFFD as in readCharacter().
[[nodiscard]] std::u16string toUtf16(std::string_view utf8);

// Appends big-endian UTF-16 units to `text` as UTF-8; false for an unpaired surrogate. An odd last byte is
// ignored.
[[nodiscard]] bool appendUtf8(std::string& text, std::span<const std::byte> units);

}  // namespace tb::plist
