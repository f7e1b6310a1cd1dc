#pragma once

// How the screens of the box office write its figures.

#include <string>

namespace tb {

// "(240% RETURN)"; empty without a budget.
[[nodiscard]] std::string returnText(double gross, double budget);

}  // namespace tb
