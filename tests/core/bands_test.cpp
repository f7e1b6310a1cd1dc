#include "core/bands.h"

#include <gtest/gtest.h>
#include <limits>

namespace tb {
namespace {

struct Grade {
  double from;
  double upTo;
  char name;
};

constexpr std::array<Grade, 2> grades = {
    {{.from = 0, .upTo = 3, .name = 'C'}, {.from = 3.001, .upTo = 5, .name = 'B'}}};

TEST(Bands, AValueFindsItsRowAtBothEndsAndNoneInAGapOrOutside) {
  EXPECT_EQ(bandOf(grades, 0)->name, 'C');
  EXPECT_EQ(bandOf(grades, 3)->name, 'C');
  EXPECT_EQ(bandOf(grades, 3.001)->name, 'B');
  EXPECT_EQ(bandOf(grades, 5)->name, 'B');
  for (const double outside : {-0.1, 3.0005, 5.1, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(bandOf(grades, outside), nullptr);
  }
}

}  // namespace
}  // namespace tb
