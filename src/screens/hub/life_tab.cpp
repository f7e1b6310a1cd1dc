#include <format>

#include "career/classes.h"
#include "life/energy.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"

namespace tb {

namespace {

std::string signedEnergy(std::int64_t energy) { return std::format("{:+}", energy); }

view::Row drain(const char* label, std::int64_t energy) {
  return {.label = label,
          .value = energy == 0 ? "0" : signedEnergy(-energy),
          .tone = energy > 0 ? view::Tone::warning : view::Tone::quiet};
}

}  // namespace

std::vector<view::Node> lifeTab(const Game& game) {
  const WorldState& world = game.world;
  return {
      energyMeter(world),
      view::Section{
          .heading = "ENERGY",
          .nodes = {view::Row{.label = "Weekly ceiling", .value = std::to_string(world.totalEnergyMax)},
                    view::Row{.label = "Lost to age", .value = std::to_string(world.saveAgeLoss)}}},
      view::Section{
          .heading = "EVERY WEEK TAKES",
          .nodes = {drain("Your job", world.weeklyEnergyCost), drain("Acting classes", classEnergy(world)),
                    drain("In all", weeklyEnergyDrain(world))}},
  };
}

}  // namespace tb
