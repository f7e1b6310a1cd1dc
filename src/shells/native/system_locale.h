#pragma once

#include <array>
#include <clocale>
#include <string>

#include "core/locale.h"

namespace tb {

// How this system writes money, numbers and months, from the environment (LC_ALL, LC_MONETARY, ...). A
// locale that is not UTF-8, or the C locale, gives the game's own defaults. The C library's own locale is "C"
// again afterwards: numbers in files do not depend on where the player lives.
[[nodiscard]] Locale systemLocale();

struct MonthNames {
  std::array<std::string, 12> months;
  std::array<std::string, 12> capitals;  // the same months
};

// The same from what localeconv() says; what it or `names` leave empty is as in the defaults.
[[nodiscard]] Locale localeFrom(const lconv& conventions, const MonthNames& names);

}  // namespace tb
