#pragma once

// Stable descending sort by a number. One sort is shared by rows of all types: each instance of a sort
// template would add two to four kilobytes to the page's program.

#include <cstddef>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace tb {

// The indexes of the numbers, sorted by descending number.
[[nodiscard]] std::vector<std::size_t> descendingOrder(std::span<const double> figures);

// `figure` is a member of the row, or a function that takes the row.
template <class Row, class Figure>
void sortDescending(std::vector<Row>& rows, Figure figure) {
  std::vector<double> figures;
  figures.reserve(rows.size());
  for (const Row& row : rows) figures.push_back(static_cast<double>(std::invoke(figure, row)));
  std::vector<Row> sorted;
  sorted.reserve(rows.size());
  for (const std::size_t index : descendingOrder(figures)) sorted.push_back(std::move(rows[index]));
  rows = std::move(sorted);
}

}  // namespace tb
