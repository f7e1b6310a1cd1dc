#pragma once

// Lists by a figure, the greatest first; what has the same figure keeps its order. One sort for rows of all
// types: a sort that is stamped out for each type takes two to four kilobytes of the page's program.

#include <cstddef>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace tb {

// The indexes of the figures, that of the greatest first.
[[nodiscard]] std::vector<std::size_t> descendingOrder(std::span<const double> figures);

// `figure` is a member of a row, or a function of it.
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
