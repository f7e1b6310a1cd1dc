#include "life/separation.h"

#include "banks/draw.h"
#include "core/format.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/text.h"
#include "life/partner.h"

namespace tb {

namespace {

constexpr std::int64_t firstMoneyEnergy = 5;  // the price of asking a new partner for money

struct Departure {
  std::string name;
  std::string line;
  std::int64_t energyBonus = 0;  // lost, in points per week
  bool wasMarried = false;
  bool hadPrenup = false;
  double share = 0;  // dollars taken; negative while the player is in debt
};

std::string heartbreakWords(const Departure& departure) {
  return tb::format(
      "\n'{}'\n\n-{}😭\n\nYou are a heartbreaker and lost your energy bonus of {} and an additional -1 for "
      "all "
      "the drama your now ex will be causing you.",
      departure.line, departure.name, departure.energyBonus);
}

std::string energyWords(const Departure& departure) {
  return tb::format(
      "You lost your energy bonus of {} and an additional -2 for all the trauma a divorce will be causing "
      "you...",
      departure.energyBonus);
}

std::string shareWords(const Game& game, const Departure& departure) {
  return tb::format(
      "I signed the divorce papers today and will be taking my share ({}) of what WE built in cash!\n\nIf "
      "you "
      "do not have the cash on hand, you will take a negative balance.\n\n",
      shareMoney(game.locale, departure.share));
}

std::string divorceWords(const Game& game, const Departure& departure, bool isScandal) {
  const char* const reason =
      isScandal ? "with you sliding into DM's while we are MARRIED!" : "with you ignoring my existence.";
  const char* const dirty = isScandal ? "you can keep your DIRTY money!" : "I don't want your DIRTY money.";
  return tb::format("{}{}, I can't keep living like this {} ", isScandal ? "\n" : "", game.world.myName,
                    reason) +
         (departure.hadPrenup
              ? tb::format("I signed the divorce papers today and even though we signed a prenup, {}\n\n",
                           dirty)
              : shareWords(game, departure)) +
         energyWords(departure);
}

// Over money.
std::string goldDiggerWords(const Game& game, const Departure& departure) {
  std::string words = tb::format("\n'{}'\n\n-{}😡\n\n", departure.line, departure.name);
  if (!departure.wasMarried) {
    return words + tb::format(
                       "You lost your energy bonus of {} and an additional -1 for all the drama your now ex "
                       "will be causing you.",
                       departure.energyBonus);
  }
  words += departure.name +
           " called it quits. Close this screen and get back on Latch to find someone else to love.\n\n";
  if (!departure.hadPrenup) {
    words +=
        tb::format("The divorce took half of your cash ({}). ", shareMoney(game.locale, departure.share));
  }
  return words + energyWords(departure);
}

Notice noticeOf(const Game& game, const Departure& departure, DepartureReason reason) {
  if (reason == DepartureReason::money) {
    return {.title = "🤬GOLD DIGGER!!🤬", .message = goldDiggerWords(game, departure)};
  }
  if (departure.wasMarried) {
    return {.title = "🤬 I WANT A DIVORCE!🤬",
            .message = divorceWords(game, departure, reason == DepartureReason::messages)};
  }
  return {.title = upperCase(game.world.myName) + "!🤬", .message = heartbreakWords(departure)};
}

}  // namespace

void endRelationship(WorldState& world, const std::string& line) {
  for (std::size_t index = 0; index < world.saveAllMatchesList.size(); ++index) {
    if (world.saveAllMatchesList[index].relationshipState < bond::dating) continue;
    Matches& partner = world.saveAllMatchesList.edit(index);
    partner.relationshipState = bond::ended;
    partner.weekEndedDating = world.weekNumberForTracking;
    partner.breakupLine = line;
  }
  world.askForMoneyEnergyCost = firstMoneyEnergy;
  world.relationshipTracker.clear();
}

Separation partnerLeaves(Game& game, Bank lastWords, DepartureReason reason) {
  WorldState& world = game.world;
  const Matches partner = *currentPartner(world);
  Departure departure{.name = partner.name,
                      .line = std::string(drawFreshRow(game, lastWords)),
                      .energyBonus = partner.energyBonus,
                      .wasMarried = partner.relationshipState == bond::married,
                      .hadPrenup = world.signPrenup == 1};
  world.totalEnergyMax -= partner.energyBonus + 1;
  if (departure.wasMarried) {
    departure.share = departure.hadPrenup ? 0 : world.totalCashAvailable / 2;
    world.totalCashAvailable -= departure.share;
    world.totalEnergyMax -= 1;
    world.energyLossExDrama += 2;
    world.signPrenup = 0;
  } else {
    world.energyLossExDrama += 1;
  }
  endRelationship(world, departure.line);
  logActivity(world, partner.name + " has left you.");
  return {.notice = noticeOf(game, departure, reason), .partner = partner};
}

}  // namespace tb
