#include "screens/backstage/casting_network_view_controller.h"

#include <format>

#include "screens/backstage/backstage_detail_view_controller.h"
#include "screens/backstage/listing_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

void CastingNetworkViewController::load(Stage& stage) { board_ = openCastingNetwork(stage.game()); }

Card CastingNetworkViewController::listingCard(const Game& game, const CastingListing& listing) const {
  Card card{.title = listing.movie->title,
            .subtitle = listingSummary(listing),
            .picture = {posterOf(*listing.movie)},
            .nodes = {Text{.text = listing.movie->shortSummary},
                      Row{.label = "Pay",
                          .value = payWords(game.locale, {.fee = listing.payment,
                                                          .buyout = listing.buyout,
                                                          .residual = listing.residual})},
                      Row{.label = "Audition", .value = whenIs(game.world, listing.weekAudition)},
                      Buttons{{submitButton(game.world, listing),
                               {.label = "Read more", .press = [listing](Stage& stage) {
                                  stage.open(std::make_unique<BackstageDetailViewController>(listing));
                                }}}}}};
  if (isSubmitted(game.world, listing)) card.nodes.push_back(submittedCaption());
  return card;
}

Page CastingNetworkViewController::view(const Game& game) {
  Page page{.title = "Casting Network", .subtitle = "The Backstage"};
  page.nodes = {
      Text{.text = "Search and apply for television, commercial, and film auditions. Your experience and "
                   "showreel increase your chances of landing callbacks and roles."},
      energyMeter(game.world)};
  for (const CastingListing& listing : board_) page.nodes.push_back(listingCard(game, listing));
  return page;
}

}  // namespace tb
