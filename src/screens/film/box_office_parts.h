#pragma once

// How the screens of the box office write its figures.

#include <string>

#include "core/locale.h"

namespace tb {

// Short money. A run can lose money in its last week, and such an amount is written in full, since the short
// form has no words for it.
[[nodiscard]] std::string shownMoney(const Locale& locale, double amount);

// "(240% RETURN)"; empty without a budget.
[[nodiscard]] std::string returnText(double gross, double budget);

}  // namespace tb
