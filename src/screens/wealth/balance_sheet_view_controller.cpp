#include "screens/wealth/balance_sheet_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"
#include "screens/wealth/money_parts.h"
#include "wealth/net_worth.h"

namespace tb {

using namespace view;

namespace {

Row moneyRow(const Game& game, std::string label, double amount, std::string detail = "") {
  return {.label = std::move(label),
          .value = cash(game.locale, amount),
          .detail = std::move(detail),
          .tone = amount < 0    ? Tone::warning
                  : amount == 0 ? Tone::quiet
                                : Tone::plain};
}

Section parts(const Game& game, const NetWorth& worth) {
  Section section{.heading = "WHAT YOU OWN"};
  for (MoneyPart& part : partsOf(worth)) {
    section.nodes.push_back(moneyRow(game, std::move(part.label), part.amount));
  }
  return section;
}

std::string paid(const Game& game, double price) { return "Paid " + cash(game.locale, price); }

PagedList homes(const Game& game) {
  return {
      .key = "homes", .size = game.world.saveAllPropertyList.size(), .nodeAt = [&game](std::size_t index) {
        const Property& home = game.world.saveAllPropertyList[index];
        Row row =
            moneyRow(game, home.propertyTitle, propertyValue(game.world, home), paid(game, home.pricePaid));
        row.picture = {{.kind = PictureKind::house, .name = home.imageName}};
        return row;
      }};
}

PagedList vehicles(const Game& game) {
  return {.key = "vehicles",
          .size = game.world.saveAllTransportationOwnedList.size(),
          .nodeAt = [&game](std::size_t index) {
            const Transportation& vehicle = game.world.saveAllTransportationOwnedList[index];
            Row row = moneyRow(game, vehicle.title, vehicleValue(game.world, vehicle),
                               tb::format("{} in {}", paid(game, vehicle.pricePaid), vehicle.yearPurchased));
            row.picture = {{.kind = PictureKind::vehicle, .name = vehicle.imageName}};
            return row;
          }};
}

}  // namespace

void BalanceSheetViewController::appear(Stage& stage) { updateNetWorth(stage.game()); }

Page BalanceSheetViewController::view(const Game& game) {
  const NetWorth worth = netWorth(game.world);
  Page page{.title = "Balance Sheet", .subtitle = "At today's prices"};
  page.nodes = {
      Tiles{{moneyTile(game, "Net worth", worth.total())}},
      moneyPie(game, "What your wealth is made of", partsOf(worth), "You own nothing of value yet."),
      parts(game, worth)};
  if (!game.world.saveAllPropertyList.empty()) {
    page.nodes.push_back(Section{.heading = "PROPERTY", .nodes = {homes(game)}});
  }
  if (!game.world.saveAllTransportationOwnedList.empty()) {
    page.nodes.push_back(Section{.heading = "VEHICLES", .nodes = {vehicles(game)}});
  }
  return page;
}

}  // namespace tb
