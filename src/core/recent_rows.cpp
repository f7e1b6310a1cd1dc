#include "core/recent_rows.h"

namespace tb {

const std::vector<std::size_t>& RecentRows::of(std::string_view bank) { return rows_[bank]; }

void RecentRows::add(std::string_view bank, std::size_t row, std::size_t kept) {
  std::vector<std::size_t>& rows = rows_[bank];
  std::erase(rows, row);
  rows.push_back(row);
  if (rows.size() > kept) rows.erase(rows.begin());
}

}  // namespace tb
