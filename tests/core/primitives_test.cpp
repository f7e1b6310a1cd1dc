#include <format>
#include <gtest/gtest.h>
#include <limits>

#include "core/bands.h"
#include "core/calendar.h"
#include "core/descending.h"
#include "core/number_style.h"
#include "core/random.h"
#include "core/text.h"
#include "tests/scripted_random.h"
#include "tests/sheet.h"

namespace tb {
namespace {

class Words : public RandomSource {
 public:
  explicit Words(std::vector<std::uint64_t> words) : words_(std::move(words)) {}
  std::uint64_t next() override { return words_.at(place_++); }
  [[nodiscard]] std::size_t drawn() const { return place_; }

 private:
  std::vector<std::uint64_t> words_;
  std::size_t place_ = 0;
};

TEST(RandomRange, RejectsBiasedWords) {
  // 2^64 mod 101 is 79: words whose product's low half is below that must be rejected.
  Words words({0, 1, ~std::uint64_t{0}});
  EXPECT_EQ(RandomRange(words, 101), 0);
  EXPECT_EQ(words.drawn(), 2u);
  EXPECT_EQ(RandomRange(words, 101), 100);
}

TEST(RandomRange, CoversItsRange) {
  test::ScriptedRandom random;
  for (std::int64_t value = 0; value < 101; ++value) random.range(101, value);
  for (std::int64_t value = 0; value < 101; ++value) EXPECT_EQ(RandomRange(random, 101), value);
  Words one({12345});
  EXPECT_EQ(RandomRange(one, 1), 0);
  Words none({1});
  EXPECT_DEATH((void)RandomRange(none, 0), "");
}

TEST(RandomUnit, ReachesBothEndsExactly) {
  test::ScriptedRandom random;
  random.unit(0).unit(1).unit(0.5);
  EXPECT_EQ(RandomUnit(random, -0.1, 0.3), -0.1);
  EXPECT_EQ(RandomUnit(random, -0.1, 0.3), 0.3);
  EXPECT_DOUBLE_EQ(RandomUnit(random, -0.1, 0.3), 0.1);
  EXPECT_DEATH((void)RandomUnit(random, 2, 1), "");
}

struct Grade {
  double from;
  double upTo;
  char name;
};

constexpr std::array<Grade, 2> grades = {
    {{.from = 0, .upTo = 3, .name = 'C'}, {.from = 3.001, .upTo = 5, .name = 'B'}}};

TEST(Bands, FindsRowsAtBothEndsAndNoneInGaps) {
  EXPECT_EQ(bandOf(grades, 0)->name, 'C');
  EXPECT_EQ(bandOf(grades, 3)->name, 'C');
  EXPECT_EQ(bandOf(grades, 3.001)->name, 'B');
  EXPECT_EQ(bandOf(grades, 5)->name, 'B');
  for (const double outside : {-0.1, 3.0005, 5.1, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(bandOf(grades, outside), nullptr);
  }
}

TEST(GoldenNumbers, FormsAtEachThreshold) {
  test::Sheet sheet("core_numbers");
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double endless = std::numeric_limits<double>::infinity();
  constexpr double loss = -1.0;
  for (const double amount : {0.0,  99.5,      99.999, 100.0,       999.4, 1e3,           1500.0, 9999.0,
                              1e4,  999'999.0, 1e6,    99.94e6,     1e8,   999'999'999.0, 1e9,    999.94e9,
                              1e12, loss / 2,  loss,   loss * 1e15, none,  endless}) {
    sheet.line(std::format("{:f} dollars: '{}'", amount, shortMoney({}, amount)));
  }
  for (const std::int64_t count : {0LL, 999LL, 1'000LL, 999'949LL, 1'000'000LL, 1'550'000'000LL,
                                   999'940'000'000LL, 1'000'000'000'000LL, -1LL}) {
    sheet.line(std::format("{}: '{}'", count, shortCount(count)));
  }
  for (const double amount : {-20'000.0, 0.0, 0.004, 0.01, 1.5e6, 2e12}) {
    sheet.line(std::format("{:f} dollars, at any size: '{}'", amount, bigMoney({}, amount)));
  }
}

TEST(Currency, FollowsTheLocale) {
  const Locale german = {.currencySymbol = "€",
                         .currencyBeforeAmount = false,
                         .currencyGap = "\u00a0",
                         .decimalPoint = ",",
                         .groupSeparator = "."};
  EXPECT_EQ(currency(german, 1234567.891, 2), "1.234.567,89\u00a0€");
  EXPECT_EQ(shortMoney(german, 1500), "1,5K\u00a0€");
  EXPECT_EQ(currency({}, -1234, 0), "-$1,234");
  EXPECT_EQ(cash({}, 999.5), "$999.50");
  EXPECT_EQ(cash({}, 1000), "$1,000");
  EXPECT_EQ(cash({}, -12345), "-$12,345.00");
  EXPECT_EQ(plainCount({}, -1234567), "-1,234,567");
}

TEST(DateLabel, NamesTheFridayOfAWeekThatBeginsOnSunday) {
  EXPECT_EQ(dateHeading({}, 1, 2026, " "), "JANUARY 2, 2026");
  EXPECT_EQ(dateHeading({}, 53, 2027, " "), "DECEMBER 31, 2027");
  EXPECT_EQ(dateHeading({}, 10, 2028, " "), "MARCH 3, 2028");
  // January 1 is a Saturday, so the Friday of its week is in the previous year.
  EXPECT_EQ(dateHeading({}, 1, 2028, " "), "DECEMBER 31, 2027");
  EXPECT_EQ(dateLabel({}, 1, 2027)->month, "January");
  EXPECT_FALSE(dateLabel({}, 0, 2026));
  EXPECT_FALSE(dateLabel({}, 54, 2026));
  Locale greek;
  greek.monthCapitals[2] = "ΜΑΡΤΙΟΣ";  // capitals come from the device's language
  EXPECT_EQ(dateHeading(greek, 10, 2028, " "), "ΜΑΡΤΙΟΣ 3, 2028");
  EXPECT_EQ(dateHeading({}, 54, 2028, " "), "");
}

TEST(CoreText, FillsInOnePass) {
  EXPECT_EQ(fill("{name} is {title}.", {{"name", "{title}"}, {"title", "here"}}), "{title} is here.");
  EXPECT_EQ(fill("{unknown} {name", {{"name", "x"}}), "{unknown} {name");
  EXPECT_EQ(fill("", {}), "");
}

TEST(CoreText, WritesCasePluralsAndLists) {
  EXPECT_EQ(lowerCase("It's THE Élan, 9 Zebras @ 🎬"), "it's the Élan, 9 zebras @ 🎬");
  EXPECT_EQ(counted(1, "week"), "1 week");
  EXPECT_EQ(counted(0, "week"), "0 weeks");
  EXPECT_EQ(plural(21, "critic"), "critics");
  EXPECT_EQ(upperCase("março août märz żółw ÿ 日本 🎬 ß"), "MARÇO AOÛT MÄRZ ŻÓŁW Ÿ 日本 🎬 ß");
  EXPECT_EQ(trimmed(" \t a b \n"), "a b");
  const std::vector<std::string> parts = {"a", "b", "c"};
  EXPECT_EQ(joinedWithAnd(parts), "a, b and c");
}

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
