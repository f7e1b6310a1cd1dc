#include "screens/film/box_office_parts.h"

#include <format>

#include "core/number_style.h"
#include "film/box_office_tables.h"

namespace tb {

std::string shownMoney(const Locale& locale, double amount) {
  return amount < 0 ? currency(locale, amount, 0) : shortMoney(locale, amount);
}

std::string returnText(double gross, double budget) {
  return budget > 0 ? std::format("({:.0f}% RETURN)", returnOf(gross, budget)) : "";
}

}  // namespace tb
