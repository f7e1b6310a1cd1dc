#include "screens/audience/patron_analytics_view_controller.h"

#include <algorithm>

#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

Page PatronAnalyticsViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const std::vector<double> weeks(world.trackPatronEarnings.begin(), world.trackPatronEarnings.end());
  Page page{.title = "Analytics", .subtitle = "Patron"};
  if (weeks.empty()) {
    page.nodes = {
        caption("Patron has paid nothing yet. The first payment comes with the next week that ends.")};
    return page;
  }
  page.nodes = {Tiles{{{.label = "Last week", .value = cash(game.locale, weeks.back())},
                       {.label = "Best week", .value = cash(game.locale, std::ranges::max(weeks))},
                       {.label = "So far", .value = bigMoney(game.locale, world.totalPatronEarnings)}}},
                historyChart("Weekly income", "week", weeks,
                             [&game](double amount) { return bigMoney(game.locale, amount); })};
  return page;
}

}  // namespace tb
