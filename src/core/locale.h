#pragma once

// The device's formats for money, numbers and months. The shell fills it in; the default is en_US.

#include <array>
#include <string>

namespace tb {

struct Locale {
  std::string currencySymbol = "$";
  bool currencyBeforeAmount = true;
  std::string currencyGap;  // between the symbol and the amount, such as a no-break space
  std::string decimalPoint = ".";
  std::string groupSeparator = ",";
  std::string minusSign = "-";
  std::array<std::string, 12> months = {"January",   "February", "March",    "April",
                                        "May",       "June",     "July",     "August",
                                        "September", "October",  "November", "December"};
  // The months in capitals, by the rules of the device's language.
  std::array<std::string, 12> monthCapitals = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                               "MAY",       "JUNE",     "JULY",     "AUGUST",
                                               "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
};

}  // namespace tb
