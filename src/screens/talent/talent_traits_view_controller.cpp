#include "screens/talent/talent_traits_view_controller.h"

#include <format>
#include <string>

#include "career/traits.h"
#include "core/talent_scores.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

std::string whyNot(const WorldState& world, const Trait& trait) {
  return world.*trait.points >= highestTrait ? "Maxed out" : "";
}

Button trainButton(const WorldState& world, int k) {
  const Trait& trait = traits[static_cast<std::size_t>(k - 1)];
  return {.label = std::format("Train to {}", nextValue(world, trait)),
          .press = [k](Stage& stage) { stage.show(buyTrait(stage.game(), k)); },
          .price = energyPrice(world.*trait.price),
          .offReason = whyNot(world, trait)};
}

Card traitCard(const WorldState& world, int k) {
  const Trait& trait = traits[static_cast<std::size_t>(k - 1)];
  return {.title = std::string(trait.label),
          .nodes = {scoreMeter("Points", world.*trait.points), trainButton(world, k)}};
}

}  // namespace

Page TalentTraitsViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Talent", .subtitle = "A weak trait weighs twice: keep them even"};
  page.nodes = {Tiles{{{.label = "Level", .value = std::to_string(overallTalent(world))}}},
                energyMeter(world)};
  for (int k = 1; k <= std::ssize(traits); ++k) page.nodes.push_back(traitCard(world, k));
  return page;
}

}  // namespace tb
