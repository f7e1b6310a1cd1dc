#include "screens/offers/talent_agent_detail_view_controller.h"

#include <utility>

#include "career/agent_contract.h"
#include "core/format.h"
#include "core/signed_agent.h"
#include "screens/offers/agent_terms.h"
#include "screens/offers/offer_parts.h"
#include "screens/offers/talent_agent_signed_view_controller.h"
#include "screens/parts.h"
#include "social/inbox.h"

namespace tb {

using namespace view;

namespace {

Moment signedMoment(const TalentAgent& agent) {
  return {.scene = Moment::Scene::marquee,
          .title = "SIGNED",
          .line = tb::format("{} • {}", agent.name, agent.agency)};
}

}  // namespace

void TalentAgentDetailViewController::load(Stage& stage) { email_ = stage.game().world.passEmailId; }

void TalentAgentDetailViewController::sign(Stage& stage) {
  if (Refusal refusal = signAgent(stage.game(), email_)) return stage.show(std::move(refusal));
  if (const TalentAgent* const agent = currentAgent(stage.game().world)) stage.play(signedMoment(*agent));
  stage.close();
}

Page TalentAgentDetailViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const TalentAgent* const agent = offeringAgent(world, email_);
  if (agent == nullptr) return offerIsGone("Talent agent");
  Page page{.title = agent->name, .subtitle = agent->agency};
  page.nodes = {Card{.title = agent->name, .subtitle = agent->agency, .picture = {portraitOf(*agent)}},
                Bubble{.speaker = agent->name, .text = emailWith(world, email_)->message},
                agentTerms(game, *agent)};
  if (const TalentAgent* const current = currentAgent(world)) {
    page.nodes.push_back(leadingTo<TalentAgentSignedViewController>(
        tb::format("{} is your agent", current->name), "Only one agent can be signed at a time"));
  }
  page.nodes.push_back(declineButton("Decline", email_));
  page.main = {{.label = "Sign",
                .press = [this](Stage& stage) { sign(stage); },
                .refusal = briefOf(signingRefusal(world)),
                .name = "Sign with " + agent->name,
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
