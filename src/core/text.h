#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tb {

// Latin letters in capitals, including accented ones; other characters unchanged. For the game's own texts;
// months in capitals come from the device (core/locale.h).
[[nodiscard]] std::string upperCase(std::string_view text);

// The letters A to Z in lower case, everything else unchanged. For lookups, not for display.
[[nodiscard]] std::string lowerCase(std::string_view text);

// The text with its first character in capitals if that is an ASCII letter. Does nothing to an empty text.
[[nodiscard]] std::string capitalized(std::string text);

// The text without white space at both ends.
[[nodiscard]] std::string trimmed(std::string_view text);

// "a", "a and b", "a, b and c".
[[nodiscard]] std::string joinedWithAnd(std::span<const std::string> parts);

// The form of a noun for a count: "week" for 1, "weeks" otherwise. For nouns whose plural adds an s.
[[nodiscard]] std::string plural(std::int64_t count, std::string_view noun);

// "1 week", "3 weeks".
[[nodiscard]] std::string counted(std::int64_t count, std::string_view noun);

// Replaces the placeholders of a row by values: {"title", film} replaces "{title}". Runs in one pass and does
// not search the inserted values, so a performer named "{title}" is harmless. Unknown placeholders stay.
using Filling = std::pair<std::string_view, std::string_view>;
[[nodiscard]] std::string fill(std::string_view row, std::initializer_list<Filling> values);

}  // namespace tb
