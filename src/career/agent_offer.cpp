#include "career/agent_offer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "banks/agents_banks.h"
#include "banks/draw.h"
#include "banks/names.h"
#include "career/agent_bands.h"
#include "career/proven_roles.h"
#include "core/format.h"
#include "core/log.h"
#include "core/talent_scores.h"
#include "social/inbox.h"

namespace tb {

namespace {

constexpr std::int64_t weeksBetweenOffers = 10;
constexpr double experiencePerLevel = 100;
constexpr std::int64_t portraits = 20;  // per gender
constexpr int maxPortraitDraws = 16;    // after that, two agents share a face
constexpr std::int64_t agentIds = 50'000'000;
constexpr std::int64_t agentEmailIds = 5'000'000;
constexpr std::int64_t agentTypes = 3;
constexpr std::int64_t typeWithoutRoyalty = 2;

// The numbers count from 1.
std::int64_t drawId(Game& game, std::int64_t ids) { return RandomRange(game.random, ids) + 1; }

bool isKnownEnough(Game& game) {
  const auto levels = static_cast<std::int64_t>(game.world.experience / experiencePerLevel);
  return levels > RandomRange(game.random, 100) + 1;
}

bool isTalentedEnough(Game& game) { return overallTalent(game.world) > RandomRange(game.random, 101); }

// --- The agent ---

struct Portrait {
  bool isMale = true;
  std::string image;
};

Portrait drawPortrait(Game& game) {
  const bool isMale = RandomRange(game.random, 2) == 0;
  const std::int64_t number = RandomRange(game.random, portraits) + 1;
  return {.isMale = isMale, .image = tb::format("{}{}.png", isMale ? "sm" : "sw", number)};
}

Portrait drawNewPortrait(Game& game) {
  Portrait portrait = drawPortrait(game);
  const auto isTaken = [&] {
    return std::ranges::contains(game.world.saveAllTalentAgents, portrait.image, &TalentAgent::image);
  };
  for (int draws = 1; draws < maxPortraitDraws && isTaken(); ++draws) portrait = drawPortrait(game);
  return portrait;
}

// A row of the table of agencies begins with the name.
std::string drawAgency(Game& game) {
  const std::string& row = drawRow(game.random, bank::agencies);
  return row.substr(0, row.find(" | "));
}

void drawTerms(Game& game, TalentAgent& agent, const AgentBand& band) {
  constexpr double percent = 100;
  agent.maxBudget = drawSpread(game, band.maxBudget);
  agent.commissionPercentage = static_cast<double>(drawSpread(game, band.commission)) / percent;
  agent.residualBonus = drawInterval(game, band.residualBonus);
  agent.fanBonus = drawInterval(game, band.fanBonus);
  agent.contractYears = drawSpread(game, band.contractYears);
  agent.penaltyForBreakingContract = drawSpread(game, band.penalty);
  agent.weekToSendAudition = drawSpread(game, band.weekToSendAudition);
  agent.negotiationBonus = drawSpread(game, band.negotiationBonus);
}

TalentAgent drawAgent(Game& game, const Portrait& portrait, std::string name) {
  const WorldState& world = game.world;
  TalentAgent agent{.id = drawId(game, agentIds),
                    .name = std::move(name),
                    .image = portrait.image,
                    .weekSigned = world.weekNumberForTracking,
                    .yearSigned = world.yearNumber};
  const std::int64_t talent = overallTalent(world);
  const AgentBand& band = agentBandFor(talent);
  drawTerms(game, agent, band);
  agent.rating = RandomBetween(game.random, band.leastRating, talent);
  agent.typeOfAgent = RandomRange(game.random, agentTypes);
  const double royaltyBonus = drawRoyaltyBonus(game, agent.rating);
  if (agent.typeOfAgent != typeWithoutRoyalty) agent.royaltyBonus = royaltyBonus;
  agent.agency = drawAgency(game);
  return agent;
}

// --- The e-mail ---

// The agent saw the performer in `title`; it can be empty.
Email writeOffer(Game& game, const TalentAgent& agent, const std::string& title) {
  const auto filled = [&](Bank withoutTitle, Bank withTitle) {
    return fill(
        drawFreshRow(game, title.empty() ? withoutTitle : withTitle),
        {{"name", game.world.myName}, {"title", title}, {"agent", agent.name}, {"agency", agent.agency}});
  };
  std::string subject = filled(bank::agentSubject, bank::agentSubjectWithTitle);
  std::string body = filled(bank::agentBody, bank::agentBodyWithTitle);
  return {.id = drawId(game, agentEmailIds),
          .typeOfDeal = deal::agent,
          .title = std::move(subject),
          .message = std::move(body),
          .connectingId = agent.id};
}

}  // namespace

void agentOfferStep(Game& game) {
  WorldState& world = game.world;
  if (world.isSAG != 1 || world.weekNumber % weeksBetweenOffers != 0) return;
  const std::vector<std::size_t> roles = provenRoles(world);
  if (roles.size() < agentRoles || !isKnownEnough(game)) return;
  const Portrait portrait = drawNewPortrait(game);
  std::string name = inventedName(game.random, portrait.isMale);
  if (!isTalentedEnough(game)) return;

  world.saveAllTalentAgents.push_front(drawAgent(game, portrait, std::move(name)));
  const std::size_t role = RandomElement<std::size_t>(game.random, roles);
  sendEmail(game, writeOffer(game, world.saveAllTalentAgents.front(), world.saveAllAuditionList[role].title));
  logLine(world, NewsKind::agent, std::string(drawFreshRow(game, bank::agentFeed)));
}

}  // namespace tb
