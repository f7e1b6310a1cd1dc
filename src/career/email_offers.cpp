#include "career/email_offers.h"

#include <string>
#include <utility>

#include "banks/draw.h"
#include "banks/offers_banks.h"
#include "career/proven_roles.h"
#include "core/log.h"
#include "core/signed_agent.h"
#include "social/inbox.h"

namespace tb {

namespace {

// The ids begin above those of agents' offers.
constexpr std::int64_t offerEmailIds = 495'000'000;
constexpr std::int64_t firstEmailId = 5'000'001;

struct OfferWords {
  Bank title;
  Bank body;
  Bank feed;
};

bool arrives(Game& game) { return RandomRange(game.random, 11) >= 6; }

void sendOffer(Game& game, std::int64_t typeOfDeal, std::int64_t connectingId, const OfferWords& words) {
  WorldState& world = game.world;
  const auto filled = [&](Bank bank) { return fill(drawFreshRow(game, bank), {{"name", world.myName}}); };
  const std::int64_t id = RandomRange(game.random, offerEmailIds) + firstEmailId;
  std::string title = filled(words.title);
  std::string body = filled(words.body);
  logLine(world, NewsKind::mail, std::string(drawFreshRow(game, words.feed)));
  sendEmail(game, {.id = id,
                   .typeOfDeal = typeOfDeal,
                   .title = std::move(title),
                   .message = std::move(body),
                   .connectingId = connectingId});
}

}  // namespace

void investorOfferStep(Game& game) {
  const WorldState& world = game.world;
  if (world.weekNumber % 10 != 0 || provenRoles(world).size() < investorRoles || !arrives(game)) return;
  sendOffer(game, deal::investment, -1, {bank::investorTitle, bank::investorBody, bank::investorFeed});
}

void backendOfferStep(Game& game) {
  const WorldState& world = game.world;
  const TalentAgent* const agent = currentAgent(world);
  if (agent == nullptr || world.weekNumber % 13 != 0) return;
  if (provenRoles(world).size() < stakeRoles || !arrives(game)) return;
  sendOffer(game, deal::royalty, agent->id, {bank::backendTitle, bank::backendBody, bank::backendFeed});
}

void franchiseOfferStep(Game& game) {
  const WorldState& world = game.world;
  if (!signedAgent(world) || world.weekNumber % 16 != 0 || world.saveFameLevel < sagaFame) return;
  if (provenRoles(world).size() < sagaRoles || !arrives(game)) return;
  sendOffer(game, deal::franchise, -1, {bank::franchiseTitle, bank::franchiseBody, bank::franchiseFeed});
}

}  // namespace tb
