#include "core/descending.h"

#include <algorithm>
#include <numeric>

namespace tb {

std::vector<std::size_t> descendingOrder(std::span<const double> figures) {
  std::vector<std::size_t> order(figures.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::sort(order, [&](std::size_t left, std::size_t right) {
    return figures[left] != figures[right] ? figures[left] > figures[right] : left < right;
  });
  return order;
}

}  // namespace tb
