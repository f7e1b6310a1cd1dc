#include "screens/film/box_office_parts.h"

#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office_tables.h"
#include "screens/parts.h"

namespace tb {

std::string returnText(double gross, double budget) {
  return budget > 0 ? tb::format("({:.0f}% RETURN)", returnOf(gross, budget)) : "";
}

view::Chart takingsChart(const Game& game, std::string title, const std::vector<double>& takings) {
  return barChart(
      std::move(title), takings,
      [](std::size_t week) { return week == 0 ? "Opening" : tb::format("Week {}", week); },
      [&game](double amount) { return bigMoney(game.locale, amount); });
}

}  // namespace tb
