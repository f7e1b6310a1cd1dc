#pragma once

// Text as a terminal shows it: UTF-8 measured in columns, cleaned of what a terminal would obey, and broken
// into lines.

#include <string>
#include <string_view>
#include <vector>

namespace tb::console {

// The columns that a text takes on one line: two for emoji and wide East Asian characters, none for
// combining marks, joiners and control characters. Where terminals differ, the most that one takes.
[[nodiscard]] int columnsOf(std::string_view text);

// The text without control characters and escape sequences, without marks that turn the direction of
// reading, and with U+FFFD for what is no UTF-8. Line breaks stay; a tab becomes a blank.
[[nodiscard]] std::string cleaned(std::string_view text);

// Broken into lines of at most `width` columns (1 and up): at blanks, within a word only when the word alone
// is wider, and at "\n". At least one line.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view text, int width);

// The first `count` characters, a character being a code point with the marks that join it.
[[nodiscard]] std::string firstCharacters(std::string_view text, int count);

// The text cut to `width` columns (4 and up), "..." telling that something is missing.
[[nodiscard]] std::string fitted(std::string_view text, int width);

}  // namespace tb::console
