#pragma once

// Doubles as text for the web page, with the same output as std::to_chars. The standard library's
// implementation has 120 KB of incompressible tables, a quarter of the first download. This one uses the C
// library, which is linked anyway.

#include <charconv>

namespace tb {

// Like std::to_chars, each writes to [first, last) without a terminating zero and returns the end of the
// text, or errc::value_too_large.

// The fewest digits that parse to the same double, in the shorter notation.
[[nodiscard]] std::to_chars_result writeShortest(char* first, char* last, double value);
[[nodiscard]] std::to_chars_result writeShortest(char* first, char* last, double value,
                                                 std::chars_format notation);

// With `precision` digits (0 and up). Does not support hexadecimal notation.
[[nodiscard]] std::to_chars_result writePrecise(char* first, char* last, double value,
                                                std::chars_format notation, int precision);

}  // namespace tb
