#include "core/number_style.h"

#include <array>
#include <cmath>

#include "core/format.h"

namespace tb {

namespace {

// A row of a short form: amounts less than `below` are shown divided by `unit`.
struct ShortForm {
  double below;
  double unit;
  int digits;
  const char* suffix;
};

constexpr std::array<ShortForm, 7> moneyForms = {{
    {.below = 1e2, .unit = 1, .digits = 2, .suffix = ""},
    {.below = 1e3, .unit = 1, .digits = 0, .suffix = ""},
    {.below = 1e4, .unit = 1e3, .digits = 1, .suffix = "K"},
    {.below = 1e6, .unit = 1e3, .digits = 0, .suffix = "K"},
    {.below = 1e8, .unit = 1e6, .digits = 1, .suffix = "M"},
    {.below = 1e9, .unit = 1e6, .digits = 0, .suffix = "M"},
    {.below = 1e12, .unit = 1e9, .digits = 1, .suffix = "B"},
}};

constexpr ShortForm trillions = {.below = 1e15, .unit = 1e12, .digits = 1, .suffix = "T"};

constexpr std::array<ShortForm, 4> countForms = {{
    {.below = 1e3, .unit = 1, .digits = 0, .suffix = ""},
    {.below = 1e6, .unit = 1e3, .digits = 1, .suffix = "K"},
    {.below = 1e9, .unit = 1e6, .digits = 1, .suffix = "M"},
    {.below = 1e12, .unit = 1e9, .digits = 1, .suffix = "B"},
}};

template <std::size_t Count>
const ShortForm* formOf(const std::array<ShortForm, Count>& forms, double amount) {
  for (const ShortForm& form : forms) {
    if (amount < form.below) return &form;
  }
  return nullptr;
}

// Shown for an amount that is not a number, in every locale.
constexpr const char* noNumber = "$0";

// The digits of a nonnegative number in groups of three, with the locale's separators.
std::string groupedDigits(const Locale& locale, double amount, int digits) {
  const std::string plain = tb::format("{:.{}f}", amount, digits);
  const std::size_t whole = std::min(plain.find('.'), plain.size());
  std::string grouped;
  for (std::size_t place = 0; place < whole; ++place) {
    if (place > 0 && (whole - place) % 3 == 0) grouped += locale.groupSeparator;
    grouped += plain[place];
  }
  if (whole < plain.size()) grouped += locale.decimalPoint + plain.substr(whole + 1);
  return grouped;
}

std::string withSymbol(const Locale& locale, const std::string& amount) {
  return locale.currencyBeforeAmount ? locale.currencySymbol + locale.currencyGap + amount
                                     : amount + locale.currencyGap + locale.currencySymbol;
}

std::string inForm(const Locale& locale, const ShortForm& form, double amount) {
  return withSymbol(locale, groupedDigits(locale, amount / form.unit, form.digits) + form.suffix);
}

}  // namespace

std::string shortMoney(const Locale& locale, double v) {
  if (!std::isfinite(v)) return noNumber;
  if (v < 0) return "";
  const ShortForm* form = formOf(moneyForms, v);
  return form == nullptr ? "" : inForm(locale, *form, v);
}

std::string shareMoney(const Locale& locale, double amount) {
  if (!std::isfinite(amount)) return noNumber;
  const double size = std::abs(amount);
  const ShortForm* form = formOf(moneyForms, size);
  return (amount < 0 ? locale.minusSign : "") + inForm(locale, form == nullptr ? trillions : *form, size);
}

std::string shortCount(std::int64_t n) {
  if (n < 0) return "";
  const ShortForm* form = formOf(countForms, static_cast<double>(n));
  if (form == nullptr) return "";
  return tb::format("{:.{}f}{}", static_cast<double>(n) / form->unit, form->digits, form->suffix);
}

std::string currency(const Locale& locale, double amount, int digits) {
  if (!std::isfinite(amount)) return noNumber;
  const std::string text = withSymbol(locale, groupedDigits(locale, std::abs(amount), digits));
  return amount < 0 ? locale.minusSign + text : text;
}

std::string wholeMoney(const Locale& locale, double amount) { return currency(locale, amount, 0); }

std::string bigMoney(const Locale& locale, double amount) {
  constexpr double leastCents = 0.005;
  const std::string shortForm = std::abs(amount) < leastCents ? "" : shortMoney(locale, amount);
  return shortForm.empty() ? wholeMoney(locale, amount) : shortForm;
}

std::string cash(const Locale& locale, double amount) {
  constexpr double wholeUnitsFrom = 1000;
  return currency(locale, amount, amount < wholeUnitsFrom ? 2 : 0);
}

std::string plainCount(const Locale& locale, std::int64_t n) {
  const std::string digits = groupedDigits(locale, std::abs(static_cast<double>(n)), 0);
  return n < 0 ? locale.minusSign + digits : digits;
}

}  // namespace tb
