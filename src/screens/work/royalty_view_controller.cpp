#include "screens/work/royalty_view_controller.h"

#include <algorithm>

#include "career/royalty_stake.h"
#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "core/text.h"
#include "screens/offers/offer_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

// The agent's message.
Bubble agentMessage(const WorldState& world, std::int64_t emailId) {
  const auto email = find(world.saveAllEmailList, &Email::id, emailId);
  return {.speaker = world.saveAllTalentAgents[*signedAgent(world)].name,
          .text = world.saveAllEmailList[*email].message};
}

Section offerSection(const Game& game, const Audition& offer) {
  return {.heading = "THE PROJECT",
          .nodes = {Text{.text = offer.description}, Row{.label = "Director", .value = offer.directorName},
                    Row{.label = "Genre", .value = joinedWithAnd(offer.genres)},
                    Row{.label = "Budget", .value = bigMoney(game.locale, offer.budget)},
                    Row{.label = "Pay", .value = "A share of what it earns, no fee"}}};
}

// A series has no box office; its royalty is paid from syndication.
std::string shareOf(const Audition& offer) {
  return offer.typeOfFilm == filmType::series ? "of the price when it is syndicated"
                                              : "of the box office, and of the price when it is syndicated";
}

}  // namespace

void RoyaltyViewController::load(Stage& stage) {
  email_ = stage.game().world.passEmailId;
  drawStakeOffer(stage.game(), email_);
}

void RoyaltyViewController::negotiate(Stage& stage) {
  StakeAnswer answer = negotiateStake(stage.game(), email_, steps_);
  stage.show(std::move(answer.notice));
  if (!answer.isFinal) return;
  stage.close();
}

Section RoyaltyViewController::askSection(const Game& game, const Audition& offer) {
  const std::int64_t bonus = negotiationBonus(game.world);
  return {.heading = "YOUR ASK",
          .nodes = {Tiles{{{.label = "Royalty",
                            .value = tb::format("{:.2f}%", percentAsked(offer, steps_)),
                            .detail = shareOf(offer)}}},
                    chanceMeter(static_cast<double>(chanceOfNegotiation(steps_)), bonus),
                    Buttons{{{.label = "Ask for less",
                              .press = [this](Stage&) { steps_ -= 1; },
                              .offReason = steps_ > 0 ? "" : "This is what they offer"},
                             {.label = "Ask for more",
                              .press = [this](Stage&) { steps_ += 1; },
                              .offReason = steps_ < maxStakeSteps ? "" : "Nobody has ever asked for more"}}},
                    Button{.label = "Negotiate",
                           .press = [this](Stage& stage) { negotiate(stage); },
                           .price = energyPrice(stakeNegotiationEnergy),
                           .refusal = briefOf(stakeRefusal(game.world)),
                           .weight = Button::Weight::primary}}};
}

Page RoyaltyViewController::view(const Game& game) {
  const Audition* const offer = stakeOffer(game.world, email_);
  if (offer == nullptr) return offerIsGone("Royalty");
  return {.title = offer->title,
          .subtitle = tb::format("{} • {}", typeName(offer->typeOfFilm), guildWords(offer->isUnion)),
          .nodes = {posterOf(game.world, *offer), agentMessage(game.world, email_), askSection(game, *offer),
                    roleSection(*offer), offerSection(game, *offer), declineButton("Turn it down", email_)}};
}

}  // namespace tb
