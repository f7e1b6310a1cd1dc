#include "screens/backstage/backstage_view_controller.h"

#include "screens/backstage/casting_network_view_controller.h"
#include "screens/parts.h"
#include "screens/talent/actors_guild_view_controller.h"
#include "screens/talent/showreel_view_controller.h"

namespace tb {

view::Page BackstageViewController::view(const Game& game) {
  const WorldState& world = game.world;
  return {.title = "The Backstage",
          .subtitle = "What casting knows about you",
          .nodes = {leadingTo<CastingNetworkViewController>("Casting Network", "Today's roles to submit for"),
                    leadingTo<ShowreelViewController>("Showreel", "The first thing that casting sees",
                                                      std::to_string(world.showreelScore)),
                    leadingTo<ActorsGuildViewController>(
                        "Actor's Guild",
                        world.isSAG == 1 ? "Member in good standing" : "Union work for working actors")}};
}

}  // namespace tb
