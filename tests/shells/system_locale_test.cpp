#include "shells/native/system_locale.h"

#include <gtest/gtest.h>

namespace tb {

namespace {

const std::array<std::string, 12> french = {"janvier",   "février", "mars",     "avril",
                                            "mai",       "juin",    "juillet",  "août",
                                            "septembre", "octobre", "novembre", "décembre"};

}  // namespace

TEST(SystemLocale, MoneyAndMonthsAreThoseOfThePlayersCountry) {
  char symbol[] = "€", point[] = ",", group[] = "\u202f", minus[] = "-";
  lconv conventions = *localeconv();
  conventions.currency_symbol = symbol;
  conventions.mon_decimal_point = point;
  conventions.mon_thousands_sep = group;
  conventions.negative_sign = minus;
  conventions.p_cs_precedes = 0;
  conventions.p_sep_by_space = 1;
  const Locale locale = localeFrom(conventions, french);
  EXPECT_EQ(locale.currencySymbol, "€");
  EXPECT_FALSE(locale.currencyBeforeAmount);
  EXPECT_EQ(locale.currencyGap, "\u00A0");
  EXPECT_EQ(locale.decimalPoint, ",");
  EXPECT_EQ(locale.groupSeparator, "\u202f");
  EXPECT_EQ(locale.months[7], "août");
}

TEST(SystemLocale, WhatTheSystemLeavesOpenIsAsAlways) {
  const Locale usual;
  const Locale locale = localeFrom(*localeconv(), {});  // the C locale has neither a currency nor groups
  EXPECT_EQ(locale.currencySymbol, usual.currencySymbol);
  EXPECT_TRUE(locale.currencyBeforeAmount);
  EXPECT_EQ(locale.currencyGap, usual.currencyGap);
  EXPECT_EQ(locale.groupSeparator, usual.groupSeparator);
  EXPECT_EQ(locale.months, usual.months);
}

}  // namespace tb
