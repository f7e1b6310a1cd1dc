#include "screens/backstage/listing_parts.h"

#include "career/submission.h"
#include "core/find.h"
#include "core/format.h"
#include "screens/parts.h"
#include "screens/work/project_words.h"

namespace tb {

namespace {

void submit(Stage& stage, const CastingListing& listing) {
  if (Refusal refusal = submitToCastingListing(stage.game(), listing)) return stage.show(std::move(refusal));
  stage.say(tb::format("Showreel sent to {}", listing.movie->title));
}

}  // namespace

std::string listingSummary(const CastingListing& listing) {
  return tb::format("{} • {} • {}", typeName(listing.movie->type), listing.role, guildWords(listing.isUnion));
}

std::string listingPay(const Game& game, const CastingListing& listing) {
  return payWords(game.locale,
                  {.fee = listing.payment, .buyout = listing.buyout, .residual = listing.residual});
}

view::Button submitButton(const WorldState& world, const CastingListing& listing) {
  view::Button button{.label = "Submit",
                      .press = [listing](Stage& stage) { submit(stage, listing); },
                      .name = "Submit for " + listing.movie->title};
  if (find(world.saveAllAuditionList, &Audition::filmId, listing.filmId)) {
    button.label = "Submitted";
    button.name = "Submitted for " + listing.movie->title;
    button.weight = view::Button::Weight::done;
    return button;
  }
  button.price = energyPrice(submissionEnergy);
  button.refusal = briefOf(submissionRefusal(world, listing));
  button.weight = view::Button::Weight::primary;
  return button;
}

}  // namespace tb
