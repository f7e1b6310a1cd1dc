#include "screens/talent/talent_traits_view_controller.h"

#include <string>

#include "career/traits.h"
#include "core/talent_scores.h"
#include "screens/parts.h"
#include "screens/talent/trait_parts.h"

namespace tb {

using namespace view;

namespace {

Card traitCard(const WorldState& world, std::size_t index) {
  const Trait& trait = traits[index];
  return {.title = std::string(trait.label),
          .nodes = {scoreMeter("Points", world.*trait.points), trainButton(world, index)}};
}

}  // namespace

Page TalentTraitsViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Talent", .subtitle = "A weak trait weighs twice: keep them even"};
  page.nodes = {Tiles{{scoreTile("Level", overallTalent(world))}}};
  for (std::size_t index = 0; index < traits.size(); ++index) page.nodes.push_back(traitCard(world, index));
  return page;
}

}  // namespace tb
