#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/life/energy_tracker_view_controller.h"
#include "screens/life/lifestyle_weekly_energy_options_view_controller.h"
#include "screens/love/love_section.h"
#include "screens/parts.h"

namespace tb {

std::vector<view::Node> lifeTab(const Game& game) {
  const WorldState& world = game.world;
  std::vector<view::Node> nodes = {energyMeter(world)};
  nodes.append_range(nextInLife(game));
  nodes.push_back(loveSection(game));
  nodes.push_back(view::Section{.heading = "ENERGY",
                                .nodes = {leadingTo<LifestyleWeeklyEnergyOptionsViewController>(
                                              "Energy", "Subscriptions that give you more of it"),
                                          trackerRow(world)}});
  return nodes;
}

}  // namespace tb
