#pragma once

// Text in a property list: UTF-8 in memory, ASCII or big-endian UTF-16 in the file.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace tb::plist {

// The character at the front of `utf8`, which is not empty; takes its bytes off. Ill-formed bytes are U+FFFD,
// one for each longest piece that could have begun a character.
char32_t takeCharacter(std::string_view& utf8);

[[nodiscard]] bool isAscii(std::string_view text);

// Ill-formed bytes as takeCharacter() reads them.
[[nodiscard]] std::u16string toUtf16(std::string_view utf8);

// Turns the big-endian units into UTF-8 at the end of `text`; false when a surrogate stands alone. An odd
// last byte is not looked at.
[[nodiscard]] bool appendUtf8(std::string& text, std::span<const std::byte> units);

}  // namespace tb::plist
