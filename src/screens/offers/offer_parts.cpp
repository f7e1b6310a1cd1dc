#include "screens/offers/offer_parts.h"

#include <utility>

#include "core/find.h"
#include "core/format.h"
#include "core/signed_agent.h"
#include "screens/parts.h"
#include "social/inbox.h"

namespace tb {

using namespace view;

Picture portraitOf(const TalentAgent& agent) {
  return {.kind = PictureKind::avatar, .name = agent.image.empty() ? agent.name : agent.image};
}

std::vector<Picture> senderOf(const WorldState& world, const Email& email) {
  if (email.typeOfDeal != deal::agent && email.typeOfDeal != deal::royalty) return {};
  const auto agent = find(world.saveAllTalentAgents, &TalentAgent::id, email.connectingId);
  if (!agent) return {};
  return {portraitOf(world.saveAllTalentAgents[*agent])};
}

std::string chanceWords(double chance, std::int64_t agentBonus) {
  if (agentBonus == 0) return tb::format("{:.0f}% Chance", chance);
  return tb::format("{:.0f}% Chance + {}% Agent Bonus", chance, agentBonus);
}

Meter chanceMeter(double chance, std::int64_t agentBonus) {
  return {.label = "They agree",
          .value = chance + static_cast<double>(agentBonus),
          .maximum = 100,
          .text = chanceWords(chance, agentBonus)};
}

Button declineButton(std::string label, std::int64_t emailId) {
  return {.label = std::move(label),
          .press =
              [emailId](Stage& stage) {
                removeEmail(stage.game(), emailId);
                stage.close();
              },
          .weight = Button::Weight::quiet};
}

Page offerIsGone(std::string title) {
  return {.title = std::move(title), .nodes = {caption("This offer is not on the table anymore.")}};
}

}  // namespace tb
