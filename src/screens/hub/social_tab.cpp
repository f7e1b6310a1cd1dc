#include "core/number_style.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"

namespace tb {

std::vector<view::Node> socialTab(const Game& game) {
  const WorldState& world = game.world;
  const std::vector<double> fans(world.trackFans.begin(), world.trackFans.end());
  return {
      view::Tiles{{{.label = "Fans", .value = plainCount(game.locale, world.totalFans)}}},
      weeklyChart("Fans by week", fans,
                  [](double count) { return shortCount(static_cast<std::int64_t>(count)); }),
  };
}

}  // namespace tb
