#include "core/format.h"

#include <cmath>
#include <format>
#include <gtest/gtest.h>
#include <limits>

namespace tb {
namespace {

TEST(CoreFormat, MatchesStdFormat) {
  EXPECT_EQ(tb::format("nothing"), "nothing");
  EXPECT_EQ(tb::format(""), "");
  const std::string name = "{} 🎬";  // inserted text is not parsed as a field
  EXPECT_EQ(tb::format("{}{}{}", name, "—", std::string_view("x")), std::format("{}{}{}", name, "—", "x"));
  for (const std::int64_t value :
       {std::int64_t{0}, std::int64_t{-7}, std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(tb::format("<{}> {:+}", value, value), std::format("<{}> {:+}", value, value));
  }
  EXPECT_EQ(tb::format("{} of {}", std::size_t{3}, 4U), "3 of 4");
  for (const double value : {0.0, -0.0, 0.05, 0.25, 1.5, 2.675, -9.995, 1e15 / 3, 1e300, 5e-324, 1e22, 1e-7,
                             std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(tb::format("{} {:.0f} {:.1f} {:.9f}", value, value, value, value),
              std::format("{} {:.0f} {:.1f} {:.9f}", value, value, value, value));
    for (const int digits : {0, 2, 7}) {
      EXPECT_EQ(tb::format("{:.{}f}%", value, digits), std::format("{:.{}f}%", value, digits));
    }
  }
}

}  // namespace
}  // namespace tb
