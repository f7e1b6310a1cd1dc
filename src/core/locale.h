#pragma once

// How the device writes money, numbers and months. The shell fills it in; without one it is en_US.

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
  // The same in capitals, as the device's language writes them.
  std::array<std::string, 12> monthCapitals = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                               "MAY",       "JUNE",     "JULY",     "AUGUST",
                                               "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
};

}  // namespace tb
