#include "shells/native/system_locale.h"

#include <algorithm>
#include <langinfo.h>
#include <string_view>

namespace tb {

namespace {

constexpr const char* noBreakSpace = "\u00A0";

// Standing alone ("LLLL"), not as in a date, where the language makes a difference.
std::array<std::string, 12> monthNames() {
  constexpr nl_item items[] = {ALTMON_1, ALTMON_2, ALTMON_3, ALTMON_4,  ALTMON_5,  ALTMON_6,
                               ALTMON_7, ALTMON_8, ALTMON_9, ALTMON_10, ALTMON_11, ALTMON_12};
  std::array<std::string, 12> months;
  std::ranges::transform(items, months.begin(), [](nl_item item) { return std::string(nl_langinfo(item)); });
  return months;
}

bool isUtf8OfSomewhere() {
  const std::string_view name = setlocale(LC_MONETARY, nullptr);
  if (name == "POSIX" || name == "C" || name.starts_with("C.")) return false;
  return std::string_view(nl_langinfo(CODESET)) == "UTF-8";
}

void take(std::string& into, const char* first, const char* second) {
  if (*first != '\0') {
    into = first;
  } else if (*second != '\0') {
    into = second;
  }
}

}  // namespace

Locale localeFrom(const lconv& conventions, const std::array<std::string, 12>& months) {
  Locale locale;
  take(locale.decimalPoint, conventions.mon_decimal_point, conventions.decimal_point);
  take(locale.groupSeparator, conventions.mon_thousands_sep, conventions.thousands_sep);
  take(locale.minusSign, conventions.negative_sign, "");
  if (*conventions.currency_symbol != '\0') {
    locale.currencySymbol = conventions.currency_symbol;
    locale.currencyBeforeAmount = conventions.p_cs_precedes != 0;
    locale.currencyGap = conventions.p_sep_by_space == 1 ? noBreakSpace : "";
  }
  if (std::ranges::none_of(months, &std::string::empty)) locale.months = months;
  return locale;
}

Locale systemLocale() {
  Locale locale;
  if (setlocale(LC_ALL, "") != nullptr && isUtf8OfSomewhere())
    locale = localeFrom(*localeconv(), monthNames());
  setlocale(LC_ALL, "C");
  return locale;
}

}  // namespace tb
