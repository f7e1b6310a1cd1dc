#pragma once

// The text rows that were shown most recently, by bank. In memory only: empty at launch.

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace tb {

class RecentRows {
 public:
  // The most recent rows of the bank, oldest first.
  [[nodiscard]] const std::vector<std::size_t>& of(std::string_view bank);

  // Adds a row to its bank's recent rows and drops all but the `kept` newest.
  void add(std::string_view bank, std::size_t row, std::size_t kept);

 private:
  std::map<std::string_view, std::vector<std::size_t>> rows_;  // by bank name
};

}  // namespace tb
