#include "screens/love/wedding_venue_view_controller.h"

#include <utility>

#include "life/engagement.h"
#include "life/partner.h"
#include "screens/love/love_parts.h"
#include "screens/moments.h"
#include "screens/parts.h"
#include "wealth/net_worth.h"

namespace tb {

using namespace view;

namespace {

void marry(Stage& stage, std::size_t wedding, double price, bool prenup) {
  if (Refusal refusal = holdWedding(stage.game(), wedding, price, prenup)) {
    return stage.show(std::move(refusal));
  }
  const Matches& partner = *currentPartner(stage.game().world);
  stage.close();
  stage.play(momentOf(NewsKind::wedding, "You and " + partner.name,
                      {{.kind = PictureKind::photo, .name = weddingImage(wedding)}}));
}

void askForPrenup(Stage& stage, std::size_t wedding, double price) {
  if (Refusal refusal = weddingRefusal(stage.game().world, price)) return stage.show(std::move(refusal));
  updateNetWorth(stage.game());
  const auto answer = [&](const char* label, bool prenup) {
    return Button{.label = label, .press = [=](Stage& asked) { marry(asked, wedding, price, prenup); }};
  };
  stage.ask(prenupQuestion(stage.game()), {answer("Don't Sign Prenup", false),
                                           answer("Sign Prenup", true),
                                           {.label = "Not yet", .weight = Button::Weight::quiet}});
}

}  // namespace

void WeddingVenueViewController::load(Stage& stage) { index_ = stage.game().world.realEstateIndex; }

Page WeddingVenueViewController::view(const Game& game) {
  Page page{.title = "Wedding", .subtitle = "With " + currentPartner(game.world)->name};
  for (std::size_t wedding = 0; wedding < weddings.size(); ++wedding) {
    const double price = weddings[wedding].price * index_;
    page.nodes.push_back(Card{
        .title = nameOf(weddings[wedding]),
        .picture = {{.kind = PictureKind::photo, .name = weddingImage(wedding)}},
        .nodes = {Button{.label = "Book",
                         .press = [wedding, price](Stage& stage) { askForPrenup(stage, wedding, price); },
                         .price = moneyPrice(game.locale, price),
                         .refusal = briefOf(weddingRefusal(game.world, price)),
                         .name = "Book: " + nameOf(weddings[wedding])}}});
  }
  return page;
}

}  // namespace tb
