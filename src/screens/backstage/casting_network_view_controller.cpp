#include "screens/backstage/casting_network_view_controller.h"

#include "core/format.h"
#include "screens/backstage/backstage_detail_view_controller.h"
#include "screens/backstage/listing_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

void CastingNetworkViewController::load(Stage& stage) { board_ = openCastingNetwork(stage.game()); }

Row CastingNetworkViewController::listingRow(const Game& game, const CastingListing& listing) const {
  return {.label = listing.movie->title,
          .detail = tb::format("{} • {}\n{} • {}", typeName(listing.movie->type), listing.role,
                               listingPay(game, listing), whenIs(game.world, listing.weekAudition)),
          .picture = {posterOf(*listing.movie)},
          .press = [listing](Stage& stage) { stage.open<BackstageDetailViewController>(listing); },
          .action = {submitButton(game.world, listing)}};
}

Page CastingNetworkViewController::view(const Game& game) {
  Page page{.title = "Casting Network", .subtitle = "The Backstage", .head = Page::Head::line};
  for (const CastingListing& listing : board_) page.nodes.push_back(listingRow(game, listing));
  page.nodes.push_back(
      caption("Search and apply for television, commercial, and film auditions. Your experience and showreel "
              "increase your chances of landing callbacks and roles."));
  return page;
}

}  // namespace tb
