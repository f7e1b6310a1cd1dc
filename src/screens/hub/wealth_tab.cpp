#include <format>

#include "core/number_style.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"

namespace tb {

namespace {

using namespace view;

Node lineItem(const Game& game, const WeeklyLineItem& item) {
  return Row{.label = item.title,
             .value = currency(game.locale, item.isExpense ? -item.amount : item.amount, 0),
             .detail = std::format("since {}", item.year),
             .tone = item.isExpense ? Tone::warning : Tone::good};
}

PagedList lineItems(const Game& game) {
  const List<WeeklyLineItem>& items = game.world.saveAllWeeklyLineItems;
  return {.key = "line items",
          .size = items.size(),
          .nodeAt = [&](std::size_t index) { return lineItem(game, items[index]); },
          .whenEmpty = "No standing income or expenses."};
}

Chart indexChart(const char* title, const RealList& history) {
  const std::vector<double> values(history.begin(), history.end());
  return weeklyChart(title, values, [](double index) { return std::format("{:.3f}", index); });
}

}  // namespace

std::vector<Node> wealthTab(const Game& game) {
  const WorldState& world = game.world;
  return {
      Tiles{{{.label = "Cash",
              .value = cash(game.locale, world.totalCashAvailable),
              .tone = world.totalCashAvailable < 0 ? Tone::warning : Tone::plain},
             {.label = "Earned this year", .value = cash(game.locale, world.yearToDatePaycheck)}}},
      Section{.heading = "EVERY WEEK", .nodes = {lineItems(game)}},
      Section{.heading = "MARKETS",
              .nodes = {indexChart("Real estate index", world.trackRealEstateIndex),
                        indexChart("Card index", world.trackCardIndex)}},
  };
}

}  // namespace tb
