#include "core/descending.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tb {
namespace {

TEST(DescendingSort, IsStable) {
  struct Row {
    std::string name;
    std::int64_t figure;
    bool operator==(const Row&) const = default;
  };
  std::vector<Row> rows = {{"a", 2}, {"b", 9}, {"c", 2}, {"d", -1}, {"e", 9}, {"f", 2}};
  sortDescending(rows, &Row::figure);
  EXPECT_EQ(rows, (std::vector<Row>{{"b", 9}, {"e", 9}, {"a", 2}, {"c", 2}, {"f", 2}, {"d", -1}}));
  EXPECT_TRUE(descendingOrder({}).empty());
}

}  // namespace
}  // namespace tb
