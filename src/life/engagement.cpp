#include "life/engagement.h"

#include <cmath>
#include <string>

#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "life/partner.h"

namespace tb {

namespace {

constexpr double proposalMeter = 85;
constexpr double weddingMeter = 75;
constexpr std::int64_t quarterYear = 13;  // weeks

// Weeks as a couple that have to be exceeded.
std::int64_t patience(const Matches& partner) {
  const std::int64_t weeks = partner.timeToPropose;
  return partner.relationshipState == bond::engaged ? weeks + weeks / 2 : weeks;
}

Notice tooSoon(const Matches& partner, std::int64_t weeksLeft) {
  const std::string& name = partner.name;
  const std::string remaining = spanWords(weeksLeft);
  std::string message =
      partner.relationshipState == bond::engaged
          ? tb::format(
                "{} is overwhelmed with planning a wedding and doesn't want to rush being engaged.\n\n{} "
                "thinks a potential wedding could be in {}",
                name, name, remaining)
          : tb::format(
                "{} feels like a proposal now is too soon and would like to spend more time "
                "together.\n\nIdeally, {} would like to get engaged in {}",
                name, name, remaining);
  return {.title = "⏳ Needs More Time ⏳", .message = std::move(message), .brief = "In " + remaining};
}

Notice needsWork(const Matches& partner) {
  std::string message =
      partner.relationshipState == bond::engaged
          ? tb::format("\nYour relationship needs to improve before {} can have confidence at the altar.",
                       partner.name)
          : "\nYour relationship needs to improve before you can propose.";
  return {.title = "❤️ Needs Work ❤️",
          .message = std::move(message),
          .brief = tb::format("Needs {:.0f} points", readyMeter(partner))};
}

// What the partner owns.
double spousalWorth(const Matches& partner) {
  return std::trunc(partner.weeklyEarnings) * static_cast<double>(quarterYear * partner.age);
}

Matches& takeStep(WorldState& world, std::int64_t state) {
  Matches& partner = world.saveAllMatchesList.edit(*partnerIndex(world));
  partner.relationshipState = state;
  partner.relationshipStatus = fullMeter;
  return partner;
}

void tell(WorldState& world, const std::string& line) {
  tellPartners(world, line);
  logActivity(world, line);
}

}  // namespace

std::string nameOf(const Ceremony& ceremony) {
  constexpr std::string_view bullet = " • ";
  return std::string(ceremony.description.substr(bullet.size()));
}

std::string ringImage(std::size_t index) { return tb::format("ring{}.png", index + 1); }

std::string weddingImage(std::size_t index) { return tb::format("wedding{}.png", index + 1); }

std::int64_t readyWeek(const Matches& partner) { return partner.weekStartedDating + patience(partner) + 1; }

double readyMeter(const Matches& partner) {
  return partner.relationshipState == bond::engaged ? weddingMeter : proposalMeter;
}

Refusal proposeGate(const WorldState& world) {
  const Matches& partner = *currentPartner(world);
  const std::int64_t weeksLeft = readyWeek(partner) - world.weekNumberForTracking;
  if (weeksLeft > 0) return tooSoon(partner, weeksLeft);
  if (partner.relationshipStatus < readyMeter(partner)) return needsWork(partner);
  return {};
}

Refusal ringRefusal(const WorldState& world, double price) {
  if (world.totalCashAvailable >= price) return {};
  return notEnoughCash("\nYou do not have enough cash to purchase this ring.");
}

Proposal buyRing(Game& game, std::size_t index, double price) {
  WorldState& world = game.world;
  if (Refusal refusal = ringRefusal(world, price)) return {.refusal = std::move(refusal), .answer = {}};
  world.totalCashAvailable -= price;
  world.saveRingImage = ringImage(index);
  const Matches& partner = takeStep(world, bond::engaged);
  tell(world, tb::format("Event: You bought {} engagement ring and proposed.", nameOf(rings[index])));
  return {.refusal = {},
          .answer = {.title = "💍 Engaged 💍",
                     .message = partner.name + " said YES!\n\nCongrats on your engagement!"}};
}

Refusal weddingRefusal(const WorldState& world, double price) {
  if (world.totalCashAvailable >= price) return {};
  return notEnoughCash("\nYou do not have enough cash to purchase this package.");
}

Notice prenupQuestion(const Game& game) {
  const Matches& partner = *currentPartner(game.world);
  return {.title = "🍾 Wedding Day 🍾",
          .message = tb::format(
              "\nBefore you tie the knot, do you want {} to sign a prenup?\n\n{}'s Assets\n{}\n\n{}'s "
              "Assets\n{}\n\nIf you don’t sign a prenup, everything you own becomes shared and is typically "
              "split 50/50 in a divorce. If you do sign a prenup, your assets stay separate and protected.",
              partner.name, partner.name, bigMoney(game.locale, spousalWorth(partner)), game.world.myName,
              bigMoney(game.locale, game.world.saveNetworth))};
}

Refusal holdWedding(Game& game, std::size_t index, double price, bool prenup) {
  WorldState& world = game.world;
  if (Refusal refusal = weddingRefusal(world, price)) return refusal;
  world.totalCashAvailable -= price;
  world.saveWeddingImage = weddingImage(index);
  const Matches& partner = takeStep(world, bond::married);
  world.signPrenup = prenup ? 1 : 0;
  tell(world, tb::format("Event: You and {} got married.", partner.name));
  return {};
}

}  // namespace tb
