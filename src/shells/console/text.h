#pragma once

// Text for a terminal: measures UTF-8 in columns, removes control sequences, and wraps lines.

#include <string>
#include <string_view>
#include <vector>

namespace tb::console {

// The width of a text in columns: two for emoji and wide East Asian characters, zero for combining marks,
// joiners and control characters. Where terminals differ, the largest width.
[[nodiscard]] int columnsOf(std::string_view text);

// Removes control characters, escape sequences and direction marks, and replaces ill-formed UTF-8 by U+FFFD.
// Keeps line breaks; a tab becomes a space.
[[nodiscard]] std::string cleaned(std::string_view text);

// Wraps text to lines of at most `width` columns (1 and up), at spaces and "\n", and inside a word only if it
// is wider than a line. Returns at least one line.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view text, int width);

// The first `count` characters. A character is a code point with its combining marks.
[[nodiscard]] std::string firstCharacters(std::string_view text, int count);

// The text truncated with "..." to `width` columns (4 and up).
[[nodiscard]] std::string fitted(std::string_view text, int width);

}  // namespace tb::console
