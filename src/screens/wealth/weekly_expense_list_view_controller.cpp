#include "screens/wealth/weekly_expense_list_view_controller.h"

#include "core/calendar.h"
#include "core/descending.h"
#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"
#include "screens/wealth/money_parts.h"
#include "wealth/line_items.h"

namespace tb {

using namespace view;

namespace {

Row itemRow(const Game& game, const WeeklyLineItem& item) {
  std::string detail = tb::format("since {}", item.year);
  if (item.energyBoost != 0) detail += tb::format(" • {:+} energy", item.energyBoost);
  return {.label = item.title,
          .value = cash(game.locale, item.amount),
          .detail = std::move(detail),
          .tone = item.isExpense ? Tone::warning : Tone::good};
}

// Indexes of the expense items, or of the income items.
std::vector<std::size_t> itemsOf(const WorldState& world, bool expenses) {
  std::vector<std::size_t> found;
  for (std::size_t index = 0; index < world.saveAllWeeklyLineItems.size(); ++index) {
    if (world.saveAllWeeklyLineItems[index].isExpense == expenses) found.push_back(index);
  }
  return found;
}

Section side(const Game& game, const char* heading, std::vector<std::size_t> rows) {
  PagedList list{.key = heading, .size = rows.size()};
  list.nodeAt = [&game, rows = std::move(rows)](std::size_t index) {
    return itemRow(game, game.world.saveAllWeeklyLineItems[rows[index]]);
  };
  return {.heading = heading, .nodes = {std::move(list)}};
}

// A pie chart of the larger items, with small ones grouped together.
Chart shares(const Game& game, const std::vector<std::size_t>& expenses) {
  constexpr std::size_t maxSlices = 8;
  std::vector<MoneyPart> parts;
  for (const std::size_t index : expenses) {
    const WeeklyLineItem& item = game.world.saveAllWeeklyLineItems[index];
    parts.push_back({item.title, item.amount});
  }
  sortDescending(parts, &MoneyPart::amount);
  while (parts.size() > maxSlices) {
    const double smallItems = parts.back().amount;
    parts.pop_back();
    MoneyPart& last = parts.back();
    last = {"Everything else", last.amount + smallItems};
  }
  return moneyPie(game, "Where it goes", parts, "There are no weekly expenses.");
}

}  // namespace

Page WeeklyExpenseListViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const double expenses = standingExpenses(world);
  const std::vector<std::size_t> paid = itemsOf(world, true);
  const std::vector<std::size_t> received = itemsOf(world, false);
  Page page{.title = "Weekly Expenses", .subtitle = "Paid every week"};
  page.nodes = {Tiles{
      {moneyTile(game, "Every week", expenses), moneyTile(game, "Every year", expenses * weeksPerYear)}}};
  if (paid.size() > 1) page.nodes.push_back(shares(game, paid));
  page.nodes.push_back(side(game, "EXPENSES", paid));
  if (!received.empty()) page.nodes.push_back(side(game, "INCOME", received));
  return page;
}

}  // namespace tb
