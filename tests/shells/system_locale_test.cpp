#include "shells/native/system_locale.h"

#include <gtest/gtest.h>

namespace tb {

namespace {

const MonthNames russian = {.months = {"январь", "февраль", "март", "апрель", "май", "июнь", "июль", "август",
                                       "сентябрь", "октябрь", "ноябрь", "декабрь"},
                            .capitals = {"ЯНВАРЬ", "ФЕВРАЛЬ", "МАРТ", "АПРЕЛЬ", "МАЙ", "ИЮНЬ", "ИЮЛЬ",
                                         "АВГУСТ", "СЕНТЯБРЬ", "ОКТЯБРЬ", "НОЯБРЬ", "ДЕКАБРЬ"}};

}  // namespace

TEST(SystemLocale, ReadsMoneyAndMonths) {
  char symbol[] = "€", point[] = ",", group[] = "\u202f", minus[] = "-";
  lconv conventions = *localeconv();
  conventions.currency_symbol = symbol;
  conventions.mon_decimal_point = point;
  conventions.mon_thousands_sep = group;
  conventions.negative_sign = minus;
  conventions.p_cs_precedes = 0;
  conventions.p_sep_by_space = 1;
  const Locale locale = localeFrom(conventions, russian);
  EXPECT_EQ(locale.currencySymbol, "€");
  EXPECT_FALSE(locale.currencyBeforeAmount);
  EXPECT_EQ(locale.currencyGap, "\u00A0");
  EXPECT_EQ(locale.decimalPoint, ",");
  EXPECT_EQ(locale.groupSeparator, "\u202f");
  EXPECT_EQ(locale.months[7], "август");
  EXPECT_EQ(locale.monthCapitals[7], "АВГУСТ");
}

TEST(SystemLocale, UsesDefaultsForEmptyFields) {
  const Locale usual;
  const Locale locale = localeFrom(*localeconv(), {});  // the C locale has no currency and no groups
  EXPECT_EQ(locale.currencySymbol, usual.currencySymbol);
  EXPECT_TRUE(locale.currencyBeforeAmount);
  EXPECT_EQ(locale.currencyGap, usual.currencyGap);
  EXPECT_EQ(locale.groupSeparator, usual.groupSeparator);
  EXPECT_EQ(locale.months, usual.months);
  EXPECT_EQ(locale.monthCapitals, usual.monthCapitals);
}

}  // namespace tb
