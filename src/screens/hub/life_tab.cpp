
#include "career/classes.h"
#include "core/format.h"
#include "life/energy.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/love/love_section.h"
#include "screens/parts.h"

namespace tb {

namespace {

view::Row drain(const char* label, std::int64_t energy) {
  return {.label = label,
          .value = energy == 0 ? "0" : tb::format("{:+}", -energy),
          .tone = energy > 0 ? view::Tone::warning : view::Tone::quiet};
}

// Job and classes are always listed, other costs only when they are not 0. The last row is the total.
view::Section everyWeek(const WorldState& world) {
  view::Section section{
      .heading = "WEEKLY ENERGY COSTS",
      .nodes = {drain("Your job", world.weeklyEnergyCost), drain("Acting classes", classEnergy(world))}};
  const auto felt = [&](const char* label, std::int64_t energy) {
    if (energy != 0) section.nodes.push_back(drain(label, energy));
  };
  felt("Too many roles at once", manyRolesStress(world, world.weekNumberForTracking));
  felt("Your children", world.childEnergyCost);
  felt("Your streaming company", world.platformEnergyCost);
  section.nodes.push_back(drain("In all", weeklyEnergyDrain(world, world.weekNumberForTracking)));
  return section;
}

}  // namespace

std::vector<view::Node> lifeTab(const Game& game) {
  const WorldState& world = game.world;
  std::vector<view::Node> nodes = {energyMeter(world)};
  nodes.append_range(nextInLife(game));
  nodes.push_back(loveSection(game));
  nodes.append_range(std::vector<view::Node>{
      everyWeek(world),
      view::Section{
          .heading = "ENERGY",
          .nodes = {view::Row{.label = "Weekly maximum", .value = std::to_string(world.totalEnergyMax)},
                    view::Row{.label = "Lost to age", .value = std::to_string(world.saveAgeLoss)}}}});
  return nodes;
}

}  // namespace tb
