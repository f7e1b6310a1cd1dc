#include "life/relationship_week.h"

#include <string>
#include <utility>

#include "banks/draw.h"
#include "banks/relationships_banks.h"
#include "core/format.h"
#include "core/log.h"
#include "core/text.h"
#include "life/gossip.h"
#include "life/partner.h"

namespace tb {

namespace {

constexpr std::int64_t chanceRolls = 11;  // of gossip, and of a post
constexpr std::int64_t gossipRoll = 3;
constexpr std::int64_t postRoll = 5;

std::int64_t drawGift(RandomSource& random) { return RandomRange(random, 21) - 10; }

// Draws a child of the couple, dated now.
Child drawChild(Game& game, const std::string& partnerName) {
  const WorldState& world = game.world;
  RandomSource& random = game.random;
  Child child{.id = world.childId, .name = "Newborn"};
  child.gender = RandomRange(random, 2);
  child.weeklyEnergyCost = 3 + RandomRange(random, 8);
  child.weeklyFinancialCost = RandomUnit(random, 75, 250);
  child.totalEnergyMax = 100 + RandomRange(random, 36);
  child.ageofDeath = 65 + RandomRange(random, 26);
  for (std::int64_t Child::* gift :
       {&Child::songWriting, &Child::virality, &Child::vocals, &Child::rhythm, &Child::charisma}) {
    child.*gift = drawGift(random);
  }
  child.weeklyAdmirationLoss = 0.25 + RandomUnit(random, 0, 1);
  const bool isDaughter = child.gender == 1;
  child.relationship = isDaughter ? "Daughter" : "Son";
  child.imageString =
      tb::format("{}childw{}.png", isDaughter ? "female" : "male", 1 + RandomRange(random, 6));
  child.birthYear = world.yearNumber;
  child.birthWeek = world.weekNumber;
  child.birthWeekForTracking = world.weekNumberForTracking;
  child.partnerName = partnerName;
  child.artistName = world.myName;
  child.relationshipTracker = {
      tb::format("Welcomed into the world, {} of {} and {}", child.relationship, world.myName, partnerName)};
  return child;
}

void welcomeChild(Game& game, const std::string& partnerName) {
  WorldState& world = game.world;
  world.childId += 1;
  Child child = drawChild(game, partnerName);
  const std::string line = tb::format("{} and you have a {}!", partnerName, lowerCase(child.relationship));
  world.saveAllChildList.push_back(std::move(child));
  tellPartners(world, line);
  logLine(world, NewsKind::birth, line);
}

void advancePregnancy(Game& game, std::size_t index) {
  Matches& partner = game.world.saveAllMatchesList.edit(index);
  if (partner.timeToBirth < 0) return;
  if (partner.timeToBirth == 0) welcomeChild(game, partner.name);
  partner.timeToBirth -= 1;
  if (partner.timeToBirth < 0) partner.maintenance += 5 + RandomRange(game.random, 21);
}

void gossip(Game& game, const Matches& partner) {
  if (isPregnant(partner) || RandomRange(game.random, chanceRolls) != gossipRoll) return;
  const std::string line = drawGossip(game, partner);
  tellPartners(game.world, line);
  logActivity(game.world, line);
}

void post(Game& game, const Matches& partner) {
  if (partner.relationshipStatus < 0 || RandomRange(game.random, chanceRolls) != postRoll) return;
  postAsPartner(game, partner,
                fill(drawFreshRow(game, bank::partnerPosts), {{"performer", game.world.myName}}));
}

std::optional<Separation> liveTogether(Game& game, std::size_t index) {
  advancePregnancy(game, index);
  Matches& partner = game.world.saveAllMatchesList.edit(index);
  const double decay = static_cast<double>(partner.maintenance) / 100;
  partner.relationshipStatus -= isPregnant(partner) ? decay + 1 : decay;
  gossip(game, partner);
  partner.igFollowers = static_cast<std::int64_t>(static_cast<double>(partner.igFollowers) *
                                                  RandomUnit(game.random, 0.99, 1.02));
  post(game, partner);
  if (partner.relationshipStatus >= 0) return {};
  Separation separation = partnerLeaves(game, bank::breakUpHeartbreaker, DepartureReason::neglect);
  feedLine(game.world, NewsKind::breakup, separation.partner.name + " has left you.");
  return separation;
}

// The energy that children cost follows the list, which is empty after a launch. The stored list must then
// become empty as well.
void keepChildren(WorldState& world) {
  world.childEnergyCost = 0;
  for (const Child& child : world.saveAllChildList) world.childEnergyCost += child.weeklyEnergyCost;
  if (world.saveAllChildList.replacesStored()) world.saveAllChildList.saveWhole();
}

}  // namespace

std::optional<Separation> relationshipWeekStep(Game& game) {
  std::optional<Separation> separation;
  if (const auto index = partnerIndex(game.world)) separation = liveTogether(game, *index);
  keepChildren(game.world);
  return separation;
}

}  // namespace tb
