// Compares the web build's formatting of doubles with the standard library's.

#include "shells/web/double_text.h"

#include <array>
#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tb {
namespace {

using Notation = std::chars_format;

template <class Write>
std::string written(Write write) {
  std::array<char, 1024> text;
  const auto [end, error] = write(text.data(), text.data() + text.size());
  return error == std::errc{} ? std::string(text.data(), end) : "no room";
}

// Money, percentages, scores, limits of the format, and random bit patterns.
std::vector<double> doubles() {
  using Limits = std::numeric_limits<double>;
  std::vector<double> values{0.0,
                             1,
                             9.5,
                             0.1,
                             0.30000000000000004,
                             100,
                             1e5,
                             1e6,
                             123456,
                             1234567,
                             0.0001,
                             0.00001,
                             1e15,
                             1e21,
                             1e22,
                             1e23,
                             5e-324,
                             2.2250738585072014e-308,
                             0.125,
                             999999.5,
                             9007199254740993.0,
                             Limits::max(),
                             Limits::infinity(),
                             Limits::quiet_NaN()};
  for (const double negative : {0.0, 2.5, Limits::infinity()}) values.push_back(-negative);
  std::mt19937_64 bits(7);
  for (int count = 0; count < 3'000; ++count) {
    values.push_back(std::round(static_cast<double>(bits() % 10'000'000'000)) / 100);
    const auto any = std::bit_cast<double>(bits());
    if (!std::isnan(any)) values.push_back(any);  // only the quiet NaN occurs
  }
  return values;
}

TEST(DoubleText, MatchesToChars) {
  for (const double value : doubles()) {
    ASSERT_EQ(written([=](char* first, char* last) { return writeShortest(first, last, value); }),
              written([=](char* first, char* last) { return std::to_chars(first, last, value); }));
    for (const Notation notation : {Notation::fixed, Notation::scientific, Notation::general}) {
      ASSERT_EQ(
          written([=](char* first, char* last) { return writeShortest(first, last, value, notation); }),
          written([=](char* first, char* last) { return std::to_chars(first, last, value, notation); }));
      for (const int precision : {0, 1, 3, 6, 17}) {
        ASSERT_EQ(written([=](char* first, char* last) {
                    return writePrecise(first, last, value, notation, precision);
                  }),
                  written([=](char* first, char* last) {
                    return std::to_chars(first, last, value, notation, precision);
                  }));
      }
    }
  }
}

TEST(DoubleText, ReportsTooSmallBuffers) {
  std::array<char, 4> room;
  const auto cut = writePrecise(room.data(), room.data() + room.size(), 12345.0, Notation::fixed, 0);
  EXPECT_EQ(cut.ec, std::errc::value_too_large);
  const auto exact = writeShortest(room.data(), room.data() + room.size(), 12.5);
  EXPECT_EQ(std::string(room.data(), exact.ptr), "12.5");
}

}  // namespace
}  // namespace tb
