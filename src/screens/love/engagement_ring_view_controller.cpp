#include "screens/love/engagement_ring_view_controller.h"

#include <utility>

#include "life/engagement.h"
#include "life/partner.h"
#include "screens/love/love_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void proposeWith(Stage& stage, std::size_t ring, double price) {
  Proposal proposal = buyRing(stage.game(), ring, price);
  if (proposal.refusal) return stage.show(std::move(proposal.refusal));
  const Matches& partner = *currentPartner(stage.game().world);
  stage.close();
  stage.ask(std::move(proposal.answer),
            {{.label = "OK",
              .press = [moment = glow("ENGAGED", "You and " + partner.name, portraitOf(partner))](
                           Stage& told) { told.play(moment); },
              .weight = Button::Weight::primary}});
}

}  // namespace

void EngagementRingViewController::load(Stage& stage) { index_ = stage.game().world.realEstateIndex; }

Page EngagementRingViewController::view(const Game& game) {
  Page page{.title = "Engagement Ring", .subtitle = "For " + currentPartner(game.world)->name};
  for (std::size_t ring = 0; ring < rings.size(); ++ring) {
    const double price = rings[ring].price * index_;
    page.nodes.push_back(
        Row{.label = nameOf(rings[ring]),
            .picture = {{.kind = PictureKind::photo, .name = ringImage(ring)}},
            .action = {{.label = "Propose",
                        .press = [ring, price](Stage& stage) { proposeWith(stage, ring, price); },
                        .price = moneyPrice(game.locale, price),
                        .refusal = briefOf(ringRefusal(game.world, price)),
                        .name = "Propose with " + nameOf(rings[ring])}}});
  }
  return page;
}

}  // namespace tb
