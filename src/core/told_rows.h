#pragma once

// Which rows of the banks of texts the player was told last. It lives in memory only: a launch begins with
// nothing told.

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace tb {

class ToldRows {
 public:
  // The rows of the bank of that name told last, the oldest first.
  [[nodiscard]] const std::vector<std::size_t>& of(std::string_view bank) { return told_[bank]; }

  // Remembers a row as the latest of its bank, and forgets all but the `kept` latest.
  void add(std::string_view bank, std::size_t row, std::size_t kept) {
    std::vector<std::size_t>& rows = told_[bank];
    std::erase(rows, row);
    rows.push_back(row);
    if (rows.size() > kept) rows.erase(rows.begin());
  }

 private:
  std::map<std::string_view, std::vector<std::size_t>> told_;  // by the name of the bank
};

}  // namespace tb
