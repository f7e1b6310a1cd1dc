#include "career/agent_contract.h"

#include "core/calendar.h"
#include "core/career_start.h"
#include "core/find.h"
#include "core/signed_agent.h"
#include "social/inbox.h"

namespace tb {

namespace {

constexpr double percent = 100;

void applyTerms(WorldState& world, const TalentAgent& agent) {
  world.agentResidualBonus = agent.residualBonus / percent;
  world.agentRoyaltyBonus = agent.royaltyBonus;
  world.agentCommission = agent.commissionPercentage;
  world.agentFanBonus = agent.fanBonus;
  world.hasAgentRoyalty = agent.royaltyBonus > 0 ? 1 : 0;
}

}  // namespace

const TalentAgent* offeringAgent(const WorldState& world, std::int64_t emailId) {
  const Email* const email = emailWith(world, emailId);
  if (email == nullptr || email->typeOfDeal != deal::agent) return nullptr;
  const auto agent = find(world.saveAllTalentAgents, &TalentAgent::id, email->connectingId);
  return agent ? &world.saveAllTalentAgents[*agent] : nullptr;
}

Refusal signingRefusal(const WorldState& world) {
  if (!signedAgent(world)) return {};
  return Notice{.title = "✍️ Already Signed! ✍️",
                .message = "\nYou have already have an agent. Fire them first before finding a new one!",
                .brief = "You have an agent"};
}

Refusal signAgent(Game& game, std::int64_t emailId) {
  WorldState& world = game.world;
  if (Refusal refusal = signingRefusal(world)) return refusal;
  const TalentAgent* const offering = offeringAgent(world, emailId);
  if (offering == nullptr) return {};
  TalentAgent& agent =
      world.saveAllTalentAgents.edit(*find(world.saveAllTalentAgents, &TalentAgent::id, offering->id));
  agent.isSigned = 1;
  agent.weekContractEnds = world.weekNumberForTracking + agent.contractYears * weeksPerYear;
  applyTerms(world, agent);
  removeEmail(game, emailId);
  return {};
}

double releasePenalty(const WorldState& world) {
  const TalentAgent* const agent = currentAgent(world);
  if (agent == nullptr || agent->weekContractEnds <= world.weekNumberForTracking) return 0;
  return static_cast<double>(agent->penaltyForBreakingContract);
}

void releaseAgent(Game& game) {
  WorldState& world = game.world;
  const auto agent = signedAgent(world);
  if (!agent) return;
  world.totalCashAvailable -= releasePenalty(world);
  world.saveAllTalentAgents.erase_at(*agent);
  applyTerms(world, TalentAgent{});
  normaliseAgentFanBonus(game);
  world.saveAllEmailList.erase_if([](const Email& email) { return email.typeOfDeal == deal::royalty; });
}

}  // namespace tb
