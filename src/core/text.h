#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tb {

// Latin letters in capitals, those with accents included; other scripts and emoji as they are. For the game's
// own texts; the device writes the capitals of its months itself (core/locale.h).
[[nodiscard]] std::string upperCase(std::string_view text);

// The letters A to Z in lower case, everything else as it is: for looking up words, not for showing them.
[[nodiscard]] std::string lowerCase(std::string_view text);

// Without the white space at both ends.
[[nodiscard]] std::string trimmed(std::string_view text);

// "a", "a and b", "a, b and c".
[[nodiscard]] std::string joinedWithAnd(std::span<const std::string> parts);

// The noun for a count of things: "week" for one, "weeks" for any other. Nouns that add an s, that is all
// that the game counts.
[[nodiscard]] std::string plural(std::int64_t count, std::string_view noun);

// "1 week", "3 weeks".
[[nodiscard]] std::string counted(std::int64_t count, std::string_view noun);

// Puts values in place of the placeholders of a row: {"title", film} for "{title}". One pass: what is put in
// is never searched again, so a performer who calls herself "{title}" breaks nothing. An unknown placeholder
// stays as it is.
using Filling = std::pair<std::string_view, std::string_view>;
[[nodiscard]] std::string fill(std::string_view row, std::initializer_list<Filling> values);

}  // namespace tb
