#pragma once

// Tables by which a figure selects a row: fans a multiplier, a budget a spread, a score a wording. They
// are looked up here.

#include <array>
#include <cstddef>

namespace tb {

// The row of the band that a value falls in, or null when it falls in none. Rows stand in rising order; each
// has an upper bound `upTo`, itself included. A row may also have a lower bound `from`: a value below it and
// above the row before falls in no band, as does a value above the last row. (Tables leave such gaps on
// purpose; what happens there is told beside the table.)
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
