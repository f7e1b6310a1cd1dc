#pragma once

// Number formats. Every number on a screen is formatted by one of these functions. For money:
//
//   cash()        what the player owns, pays or is paid: with cents while it is small
//   wholeMoney()  prices and contract pay
//   bigMoney()    budgets, grosses, fortunes and charts: short form
//   shortMoney()  lines of the feed and the log, and the tiles of a week
//   shareMoney()  the share of a fortune that a divorce costs

#include <cstdint>
#include <string>

#include "core/locale.h"

namespace tb {

// An amount of money in short form: $99.50, $100, $1.5K, $12K, $3.4M, $120M, $1.2B. Empty for a negative
// amount and for 10^12 and more, and callers rely on that; "$0" for an amount that is not a number.
[[nodiscard]] std::string shortMoney(const Locale& locale, double v);

// shortMoney() with a minus sign for negative amounts, and with T for trillions: -$500, $1.5T.
[[nodiscard]] std::string shareMoney(const Locale& locale, double amount);

// A count of people or units in short form: 999, 1.0K, 1.0M, 1.0B. Empty for negative counts and for 10^12
// and more.
[[nodiscard]] std::string shortCount(std::int64_t n);

// An amount in full, with exactly `digits` digits after the decimal point: $1,234.50, -$3; "$0" as above.
[[nodiscard]] std::string currency(const Locale& locale, double amount, int digits);

// An amount in whole units: a price, a fee, a wage.
[[nodiscard]] std::string wholeMoney(const Locale& locale, double amount);

// shortMoney() for any amount: negative amounts and a trillion and more, which have no short form, are in
// whole units. Less than half a cent is "$0".
[[nodiscard]] std::string bigMoney(const Locale& locale, double amount);

// Cash as the hub shows it: with cents below 1,000, in whole units from 1,000 on.
[[nodiscard]] std::string cash(const Locale& locale, double amount);

// A whole number with the locale's group separators: 1,234,567.
[[nodiscard]] std::string plainCount(const Locale& locale, std::int64_t n);

}  // namespace tb
