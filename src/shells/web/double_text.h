#pragma once

// Doubles as text for the page, digit for digit what std::to_chars writes. The standard library's own way
// carries tables of 120 KB, which nothing compresses: a quarter of what a first visit fetches. The C library
// writes the same digits by plain long arithmetic, and its few kilobytes are there anyway.

#include <charconv>

namespace tb {

// Each writes to [first, last) without a closing zero and answers as std::to_chars does: where the text ends,
// or errc::value_too_large with nothing to rely on in between.

// The fewest digits that read back as the same double, in the shorter of the two notations.
[[nodiscard]] std::to_chars_result writeShortest(char* first, char* last, double value);
[[nodiscard]] std::to_chars_result writeShortest(char* first, char* last, double value,
                                                 std::chars_format notation);

// With `precision` digits, 0 or more; not for hexadecimal notation.
[[nodiscard]] std::to_chars_result writePrecise(char* first, char* last, double value,
                                                std::chars_format notation, int precision);

}  // namespace tb
