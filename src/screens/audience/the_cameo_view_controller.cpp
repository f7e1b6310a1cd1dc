#include "screens/audience/the_cameo_view_controller.h"

#include <algorithm>

#include "banks/cameo_banks.h"
#include "banks/draw.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "core/weekly_option.h"
#include "screens/audience/the_cameo_price_view_controller.h"
#include "screens/headshot.h"
#include "screens/life/subscription.h"
#include "screens/parts.h"
#include "social/cameo.h"
#include "social/fame.h"

namespace tb {

using namespace view;

namespace {

constexpr int ordersShown = 3;

const Cameos* lastSales(const WorldState& world) {
  if (world.saveAllCameos.empty()) return nullptr;
  const Cameos& last = world.saveAllCameos.back();
  return last.weekNumberForTracking == world.weekNumberForTracking ? &last : nullptr;
}

double takingsSoFar(const WorldState& world) {
  double sum = 0;
  for (const Cameos& week : world.saveAllCameos) sum += week.totalPriceEarned;
  return sum;
}

Tiles salesFigures(const Game& game) {
  const Cameos* const last = lastSales(game.world);
  const std::int64_t sold = last == nullptr ? 0 : last->numberOfPurchases;
  const double earned = last == nullptr ? 0 : last->totalPriceEarned;
  return {{{.label = "Sold last week", .value = plainCount(game.locale, sold)},
           {.label = "Takings", .value = cash(game.locale, earned)},
           {.label = "So far", .value = bigMoney(game.locale, takingsSoFar(game.world))}}};
}

Chart takingsChart(const Game& game) {
  constexpr std::size_t weeksShown = 52;
  const List<Cameos>& sold = game.world.saveAllCameos;
  std::vector<double> takings;
  for (std::size_t at = sold.size() - std::min(sold.size(), weeksShown); at < sold.size(); ++at) {
    takings.push_back(sold[at].totalPriceEarned);
  }
  return historyChart("Takings", "sale", takings,
                      [&game](double amount) { return bigMoney(game.locale, amount); });
}

Row fansRow(const Game& game) {
  const bool isMet = game.world.totalFans >= cameoFans;
  return {.label = tb::format("{} fans", plainCount(game.locale, cameoFans)),
          .value = plainCount(game.locale, game.world.totalFans),
          .detail = isMet ? "They will buy" : "Nobody orders before that",
          .step = isMet ? Row::Step::taken : Row::Step::open};
}

Section profile(const WorldState& world) {
  const Cameos* const last = lastSales(world);
  Card card{.title = world.myName,
            .subtitle = tb::format("{} list • {}", fameLetter(world.saveFameLevel),
                                   counted(world.numberOfCameoReviews, "review")),
            .picture = {performerPicture(world)},
            .nodes = {Text{.text = rowsOf(bank::cameoPitches).front()}}};
  if (last != nullptr) card.nodes.push_back(Stars{.label = "Rating", .value = last->averageRating});
  return {.nodes = {std::move(card)}};
}

}  // namespace

void TheCameoViewController::load(Stage& stage) {
  if (lastSales(stage.game().world) == nullptr) return;
  for (int order = 0; order < ordersShown; ++order) {
    orders_.push_back(
        fill(drawFreshRow(stage.game(), bank::cameoRequests), {{"name", stage.game().world.myName}}));
  }
}

Page TheCameoViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "The Cameo", .subtitle = "Short videos for your fans", .nodes = {profile(world)}};
  if (!isCameoOpen(world)) {
    page.nodes.append_range(std::vector<Node>{
        Section{.heading = "TO OPEN",
                .nodes = {fansRow(game),
                          subscriptionRow(game, weeklyOption::theCameo, "Makes you available for videos")}}});
    return page;
  }
  page.nodes.push_back(salesFigures(game));
  page.nodes.push_back(leadingTo<TheCameoPriceViewController>(
      "Price",
      tb::format("Fans think {} is fair", wholeMoney(game.locale, fairCameoPrice(world.saveFameLevel))),
      cash(game.locale, world.setCameoPrice)));
  if (world.totalFans < cameoFans) page.nodes.push_back(fansRow(game));
  Section orders{.heading = "ORDERS"};
  for (const std::string& order : orders_) orders.nodes.push_back(Bubble{.speaker = "A fan", .text = order});
  if (orders_.empty()) orders.nodes.push_back(caption(rowsOf(bank::cameoPitches)[4]));
  page.nodes.push_back(std::move(orders));
  if (!world.saveAllCameos.empty()) page.nodes.push_back(takingsChart(game));
  page.nodes.push_back(cancelSubscription(game, weeklyOption::theCameo));
  return page;
}

}  // namespace tb
