#include "shells/web/view_types.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tb {
namespace {

TEST(ViewTypes, AreUpToDate) {
  std::ifstream file(VIEW_TYPES_FILE, std::ios::binary);
  const std::string committed(std::istreambuf_iterator<char>(file), {});
  EXPECT_EQ(committed, viewTypes()) << VIEW_TYPES_FILE " is stale: build the target view_types and run it";
}

}  // namespace
}  // namespace tb
