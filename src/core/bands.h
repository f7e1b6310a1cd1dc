#pragma once

// Lookup in tables whose rows cover ranges of a number: a multiplier by fans, a spread by budget, a phrase by
// score.

#include <array>
#include <cstddef>

namespace tb {

// The row whose range contains the value, or null when there is none. Rows are sorted ascending; each has an
// inclusive upper bound `upTo`. A row may also have a lower bound `from`: a value below it and above the
// previous row is in no range, and neither is a value above the last row. (Tables leave such gaps on purpose;
// a comment beside the table says what happens there.)
template <class Row, std::size_t Count>
[[nodiscard]] constexpr const Row* bandOf(const std::array<Row, Count>& rows, decltype(Row::upTo) value) {
  for (const Row& row : rows) {
    if (!(value <= row.upTo)) continue;
    if constexpr (requires { row.from; }) {
      if (value < row.from) return nullptr;
    }
    return &row;
  }
  return nullptr;
}

}  // namespace tb
