#include "life/latch.h"

#include <algorithm>
#include <utility>

#include "banks/draw.h"
#include "banks/latch_talk_banks.h"
#include "banks/relationships_banks.h"
#include "core/calendar.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/text.h"
#include "life/gossip.h"
#include "life/latch_people.h"
#include "life/partner.h"

namespace tb {

namespace {

constexpr std::int64_t matchRolls = 201;
constexpr std::int64_t shortestWait = 52;  // weeks before a proposal
constexpr std::int64_t waits = 101;
constexpr std::int64_t leastScandal = 15;  // points of the meter
constexpr std::int64_t mostScandal = 40;

// Matches below this number come of RandomRange(201).
std::int64_t matchingRolls(const WorldState& world, const Matches& person) {
  return static_cast<std::int64_t>(person.chemistry) + world.talentTrait2;
}

Notice foundOut(const std::string& partner, const std::string& other, std::int64_t hit) {
  return {
      .title = "👀 Caught in the DMs 👀",
      .message = tb::format("\n{} saw you sliding into {}'s DMs...\n\nYour relationship took a hit (-{}).",
                            partner, other, hit)};
}

Opened slideIntoDms(Game& game, const std::string& other) {
  WorldState& world = game.world;
  if (RandomRange(game.random, 2) != 0) return {};
  const std::int64_t hit = RandomBetween(game.random, leastScandal, mostScandal);
  moveMeter(world, -static_cast<double>(hit));
  const Matches& partner = *currentPartner(world);
  if (partner.relationshipStatus >= 0) {
    logActivity(world, drawGossip(game, partner));
    return {.notice = foundOut(partner.name, other, hit), .isFoundOut = true};
  }
  return {.separation = partnerLeaves(game, bank::breakUpHeartbreaker, DepartureReason::messages)};
}

void becomeCouple(Game& game, std::size_t index) {
  WorldState& world = game.world;
  Matches& match = world.saveAllMatchesList.edit(index);
  match.relationshipState = bond::dating;
  match.weekStartedDating = world.weekNumberForTracking;
  world.totalEnergyMax += match.energyBonus;
  const std::string line = tb::format(
      "{} You started dating {} and your weekly energy has been increased by +{}",
      dateHeading(game.locale, world.weekNumber, world.yearNumber, " "), match.name, match.energyBonus);
  world.relationshipTracker.clear();
  tellPartners(world, line);
  logActivity(world, line);
  const std::string post = fill(drawFreshRow(game, bank::officialChirps), {{"name", world.myName}});
  postAsPartner(game, match, tb::format("{} #{}", post, drawRow(game.random, bank::officialTags)));
}

}  // namespace

Refusal swipeRefusal(const WorldState& world, Swipe side) {
  if (world.totalEnergyAvailable >= swipeEnergy) return {};
  return notEnoughEnergy(side == Swipe::right ? "\nYou don't have the energy to keep swiping endlessly"
                                              : "\nYou don't have the energy to keep looking at potential "
                                                "lovers.");
}

double matchChance(const WorldState& world, const Matches& person) {
  constexpr double percent = 100;
  return std::min(percent * static_cast<double>(matchingRolls(world, person)) / matchRolls, percent);
}

Refusal swipeLeft(Game& game) {
  if (Refusal refusal = swipeRefusal(game.world, Swipe::left)) return refusal;
  game.world.totalEnergyAvailable -= swipeEnergy;
  generateCandidate(game);
  return {};
}

Liked swipeRight(Game& game) {
  WorldState& world = game.world;
  if (Refusal refusal = swipeRefusal(world, Swipe::right)) return {.refusal = std::move(refusal)};
  world.totalEnergyAvailable -= swipeEnergy;
  Matches person = world.latchCard.front();
  Liked liked;
  if (RandomRange(game.random, matchRolls) < matchingRolls(world, person)) liked.match = std::move(person);
  generateCandidate(game);
  return liked;
}

std::string suggestedLine(Game& game) { return std::string(drawFreshRow(game, bank::pickupLines)); }

Notice sendFirstLine(Game& game, const Matches& match, const std::string& text) {
  WorldState& world = game.world;
  Matches record = match;
  record.matchComment = trimmed(text);
  if (record.matchComment.empty()) record.matchComment = drawFreshRow(game, bank::hingeComments);
  record.interested = RandomRange(game.random, 2);
  record.pickupLineResponse =
      drawFreshRow(game, record.interested == 0 ? bank::acceptanceLines : bank::rejectionLines);
  world.matchId += 1;
  record.matchId = world.matchId;
  record.timeToPropose = shortestWait + RandomRange(game.random, waits);
  record.weekMatched = world.weekNumberForTracking;
  record.weekStartedDating = 0;
  record.weekEndedDating = -1;
  record.relationshipStatus = (record.chemistry + 50) * 0.5;
  record.breakupLine.clear();
  record.relationshipState = bond::matched;
  record.timeToBirth = -1;
  world.saveAllMatchesList.push_back(std::move(record));
  return {.title = "🌹 Hey, You 🌹",
          .message =
              "\nYou made the first move...\n\nFollow up by tapping on the rose icon in the top right "
              "corner on the main Latch screen."};
}

bool canOpenMatch(const WorldState& world, std::size_t row) {
  return currentPartner(world) != nullptr || world.saveAllMatchesList[row].relationshipState == bond::matched;
}

Opened openMatch(Game& game, std::size_t row) {
  WorldState& world = game.world;
  if (!canOpenMatch(world, row)) return {};
  const Matches& match = world.saveAllMatchesList[row];
  const Matches* const partner = currentPartner(world);
  if (partner == nullptr) {
    world.selectedMatchIndex = static_cast<std::int64_t>(row);
    return {.isConversation = true};
  }
  if (match.relationshipState != bond::matched) {
    return {.notice = Notice{.title = "❤️ It's Official ❤️",
                             .message = "\n" + partner->name + " makes you feel on top of the world!"}};
  }
  return slideIntoDms(game, match.name);
}

Conversation conversationStep(Game& game) {
  const auto index = static_cast<std::size_t>(game.world.selectedMatchIndex);
  const bool isInterested = game.world.saveAllMatchesList[index].interested == 0;
  Conversation conversation{.followUp = std::string(drawFreshRow(game, bank::followUps))};
  conversation.reply = drawFreshRow(game, isInterested ? bank::interestedReplies : bank::rejectingReplies);
  return conversation;
}

void finishConversation(Game& game) {
  WorldState& world = game.world;
  const auto index = static_cast<std::size_t>(world.selectedMatchIndex);
  if (world.saveAllMatchesList[index].interested == 0) {
    becomeCouple(game, index);
  } else {
    world.rejectionCount += 1;
    world.saveAllMatchesList.erase_at(index);
  }
  world.selectedMatchIndex = -1;
  world.slideIntoDmsCount += 1;
}

}  // namespace tb
