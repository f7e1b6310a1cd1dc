#include "shells/native/system_locale.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <langinfo.h>
#include <string_view>

namespace tb {

namespace {

constexpr const char* noBreakSpace = "\u00A0";

// Month names in the standalone form ("LLLL"), for languages that have a different form in dates.
std::array<std::string, 12> monthsAsWritten() {
  constexpr nl_item items[] = {ALTMON_1, ALTMON_2, ALTMON_3, ALTMON_4,  ALTMON_5,  ALTMON_6,
                               ALTMON_7, ALTMON_8, ALTMON_9, ALTMON_10, ALTMON_11, ALTMON_12};
  std::array<std::string, 12> months;
  std::ranges::transform(items, months.begin(), [](nl_item item) { return std::string(nl_langinfo(item)); });
  return months;
}

// A name in capitals, by the rules of the current language. Empty when its encoding is invalid.
std::string capitalsOf(const std::string& name) {
  std::wstring wide(name.size(), L'\0');
  const std::size_t letters = std::mbstowcs(wide.data(), name.c_str(), wide.size());
  if (letters == static_cast<std::size_t>(-1)) return "";
  wide.resize(letters);
  for (wchar_t& letter : wide) letter = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(letter)));
  std::string capitals(letters * MB_CUR_MAX, '\0');
  const std::size_t bytes = std::wcstombs(capitals.data(), wide.c_str(), capitals.size());
  if (bytes == static_cast<std::size_t>(-1)) return "";
  capitals.resize(bytes);
  return capitals;
}

MonthNames monthNames() {
  const std::array<std::string, 12> months = monthsAsWritten();
  MonthNames names{.months = months};
  std::ranges::transform(months, names.capitals.begin(), capitalsOf);
  return names;
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

Locale localeFrom(const lconv& conventions, const MonthNames& names) {
  Locale locale;
  take(locale.decimalPoint, conventions.mon_decimal_point, conventions.decimal_point);
  take(locale.groupSeparator, conventions.mon_thousands_sep, conventions.thousands_sep);
  take(locale.minusSign, conventions.negative_sign, "");
  if (*conventions.currency_symbol != '\0') {
    locale.currencySymbol = conventions.currency_symbol;
    locale.currencyBeforeAmount = conventions.p_cs_precedes != 0;
    locale.currencyGap = conventions.p_sep_by_space == 1 ? noBreakSpace : "";
  }
  const auto isComplete = [](const auto& months) {
    return std::ranges::none_of(months, &std::string::empty);
  };
  if (isComplete(names.months) && isComplete(names.capitals)) {
    locale.months = names.months;
    locale.monthCapitals = names.capitals;
  }
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
