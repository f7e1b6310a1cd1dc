#include "screens/audience/the_cameo_price_view_controller.h"

#include <cmath>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/parts.h"
#include "social/cameo.h"

namespace tb {

using namespace view;

namespace {

constexpr double highestPrice = 400;  // dollars; twice the highest fair price

std::string demandWords(double demand) {
  if (demand > 1) return tb::format("{:.0f}% more buyers than at the fair price", demand * 100 - 100);
  if (demand < 1) return tb::format("{:.0f}% of the buyers at the fair price", demand * 100);
  return "The fair price";
}

}  // namespace

void TheCameoPriceViewController::load(Stage& stage) { price_ = stage.game().world.setCameoPrice; }

Page TheCameoPriceViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const double fair = fairCameoPrice(world.saveFameLevel);
  const double demand = cameoDemand(price_, fair);
  const std::int64_t most = mostCameoSales(world.totalFans, demand);
  return {.title = "SELECT A PRICE",
          .subtitle =
              "Pricing applies to all products that are purchased by fans. Higher tier pricing will "
              "impact the purchase rate.",
          .nodes = {Slider{.label = "Price of a video",
                           .value = price_,
                           .minimum = 1,
                           .maximum = highestPrice,
                           .step = 1,
                           .text = cash(game.locale, price_),
                           .slide = [this](Stage&, double value) { price_ = std::round(value); }},
                    Tiles{{{.label = "Fair price", .value = wholeMoney(game.locale, fair)},
                           {.label = "Demand",
                            .value = tb::format("× {:.2f}", demand),
                            .detail = demandWords(demand),
                            .tone = demand < 0.9 ? Tone::warning : Tone::plain},
                           {.label = "A week at best",
                            .value = bigMoney(game.locale, static_cast<double>(most) * price_),
                            .detail = counted(most, "video")}}}},
          .main = {{.label = "Set the price",
                    .press =
                        [this](Stage& stage) {
                          setPrice(stage.game(), price_);
                          stage.close();
                        },
                    .weight = Button::Weight::primary}}};
}

}  // namespace tb
