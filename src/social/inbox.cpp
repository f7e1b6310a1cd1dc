#include "social/inbox.h"

#include <algorithm>
#include <utility>

#include "core/find.h"
#include "core/signed_agent.h"

namespace tb {

namespace {

bool needsAgent(const Email& email) {
  return email.typeOfDeal == deal::royalty || email.typeOfDeal == deal::franchise;
}

}  // namespace

void sendEmail(Game& game, Email email) {
  WorldState& world = game.world;
  email.weekNumber = world.weekNumber;
  email.yearNumber = world.yearNumber;
  email.weekNumberForTracking = world.weekNumberForTracking;
  world.saveAllEmailList.push_back(std::move(email));
  if (world.saveAllEmailList.size() > inboxCapacity) world.saveAllEmailList.pop_front();
}

Refusal openEmail(Game& game, std::size_t index) {
  WorldState& world = game.world;
  const Email& email = world.saveAllEmailList[index];
  world.passEmailId = email.id;
  if (!needsAgent(email) || signedAgent(world)) return {};
  return Notice{.title = "⭐️ Agent Needed ⭐️",
                .message = "You need an agent to access these opportunities...",
                .brief = "Needs an agent"};
}

bool isGift(const Email& email) { return email.typeOfDeal == deal::help && email.id == Email::giftId; }

void claimGift(Game& game) {
  if (game.world.saveAllEmailList.erase_if(isGift) > 0) game.world.totalCashAvailable += giftAmount;
}

void emptyTrash(Game& game) { game.world.saveAllEmailList.clear(); }

void removeEmail(Game& game, std::int64_t id) {
  game.world.saveAllEmailList.erase_if([id](const Email& email) { return email.id == id; });
}

const Email* emailWith(const WorldState& world, std::int64_t id) {
  const auto index = find(world.saveAllEmailList, &Email::id, id);
  return index ? &world.saveAllEmailList[*index] : nullptr;
}

bool isInboxFull(const WorldState& world) { return world.saveAllEmailList.size() >= inboxCapacity; }

}  // namespace tb
