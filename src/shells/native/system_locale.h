#pragma once

#include <array>
#include <clocale>
#include <string>

#include "core/locale.h"

namespace tb {

// The system's formats for money, numbers and months from the environment (LC_ALL, LC_MONETARY, ...). A
// locale that is not UTF-8, or the C locale, gives the game's defaults. Sets the C library's locale back to
// "C", so that numbers in files do not depend on it.
[[nodiscard]] Locale systemLocale();

struct MonthNames {
  std::array<std::string, 12> months;
  std::array<std::string, 12> capitals;  // the same months
};

// The same from the result of localeconv(); empty fields get the defaults.
[[nodiscard]] Locale localeFrom(const lconv& conventions, const MonthNames& names);

}  // namespace tb
