#include "screens/week/weekly_summary_view_controller.h"

#include <format>

#include "core/number_style.h"
#include "core/text.h"
#include "screens/film/new_release_view_controller.h"
#include "screens/parts.h"
#include "week/end_week.h"

namespace tb {

using namespace view;

namespace {

StatTile balanceTile(const Game& game, const Analytics& item) {
  return {
      .label = upperCase(item.title),
      .value = item.isCurrency == 1 ? shortMoney(game.locale, item.moneyEarned) : shortCount(item.unitsSold),
      .detail = item.subtitle};
}

Section balance(const Game& game, const WeekBalance& balance) {
  Section section{.heading = "INCOME • EXPENSES",
                  .nodes = {Balance{.income = currency(game.locale, balance.income, 0),
                                    .expenses = currency(game.locale, balance.expenses, 0)}}};
  Tiles tiles;
  for (const Analytics& item : game.world.weekBalanceItems) tiles.tiles.push_back(balanceTile(game, item));
  if (!tiles.tiles.empty()) section.nodes.push_back(std::move(tiles));
  return section;
}

Section feed(const WeekSummary& summary) {
  Section section{.heading = summary.hasNews ? "FEED" : ""};
  for (const std::string& line : summary.feed) section.nodes.push_back(Text{.text = line});
  return section;
}

}  // namespace

void WeeklySummaryViewController::load(Stage& stage) { summary_ = openSummary(stage.game()); }

void WeeklySummaryViewController::leave(Stage& stage) { closeSummary(stage.game()); }

Button WeeklySummaryViewController::releaseButton() {
  return {.label = "New Release",
          .press =
              [this](Stage& stage) {
                summary_.offersRelease = false;
                stage.open(std::make_unique<NewReleaseViewController>());
              },
          .weight = Button::Weight::primary};
}

Page WeeklySummaryViewController::view(const Game& game) {
  Page page{.title = "REVIEW", .subtitle = std::format("Week {} of {}", summary_.week, summary_.year)};
  page.nodes.push_back(balance(game, summary_.balance));
  page.nodes.push_back(energyMeter(game.world));
  if (summary_.offersRelease) {
    page.nodes.push_back(Section{.nodes = {releaseButton()}});
  }
  page.nodes.push_back(feed(summary_));
  // Every week ends here: the way on is where the thumb is that ended it.
  page.nodes.push_back(Button{
      .label = "Carry on", .press = [](Stage& stage) { stage.close(); }, .weight = Button::Weight::primary});
  return page;
}

}  // namespace tb
