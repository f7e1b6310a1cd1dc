#include "life/relationship_care.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "banks/draw.h"
#include "banks/relationships_banks.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/text.h"
#include "core/weekly_option.h"
#include "film/film_record.h"
#include "life/partner.h"

namespace tb {

namespace {

constexpr std::int64_t moods = 4;
constexpr std::size_t missedMood = 3;  // of work: the meter does not rise
constexpr std::size_t titleMood = 3;   // of a film night: a title of the performer's is on

constexpr std::array<Bank, moods> workLines = {bank::sweetTexts, bank::workTogether, bank::workTalks,
                                               bank::workMissed};
constexpr std::array<Bank, moods> metflixLines = {bank::metflixCozy, bank::metflixChoosing,
                                                  bank::metflixAsleep, bank::metflixOwnTitle};

constexpr std::int64_t dearestMoney = 30;  // energy
constexpr std::int64_t moneyStep = 5;
constexpr std::int64_t weeksOfPregnancy = 39;

double drawPoints(Game& game, std::int64_t least, std::int64_t most) {
  return static_cast<double>(RandomBetween(game.random, least, most));
}

std::size_t drawMood(Game& game) { return static_cast<std::size_t>(RandomRange(game.random, moods)); }

std::string quoted(const std::string& speaker, std::string_view words) {
  return tb::format("{}: \"{}\"", speaker, words);
}

std::string workLine(Game& game, std::size_t mood) {
  const std::string_view row = drawFreshRow(game, workLines[mood]);
  if (mood == 0) return quoted(game.world.myName, row);
  return fill(row, {{"partner", currentPartner(game.world)->name}});
}

// The performer's titles that can be watched at home.
std::vector<std::string> watchableTitles(const WorldState& world) {
  std::vector<std::string> titles;
  for (const Film& film : world.saveAllFilmList) {
    if (film.typeOfFilm != filmType::commercial && isOut(world, film)) titles.push_back(film.title);
  }
  return titles;
}

std::string metflixLine(Game& game, std::size_t mood) {
  const std::string name = currentPartner(game.world)->name;
  const std::vector<std::string> titles = watchableTitles(game.world);
  if (mood == titleMood && !titles.empty()) {
    const std::string& title = RandomElement<std::string>(game.random, titles);
    return fill(drawFreshRow(game, bank::metflixOwnTitle), {{"partner", name}, {"title", title}});
  }
  return fill(drawFreshRow(game, metflixLines[mood == titleMood ? 0 : mood]), {{"partner", name}});
}

void receiveMoney(Game& game, MoneyAnswer& answer, double amount) {
  WorldState& world = game.world;
  world.totalCashAvailable += amount;
  answer.amount = amount;
  answer.reply = fill(drawFreshRow(game, bank::moneyGiven), {{"amount", shortMoney(game.locale, amount)}});
  const std::string line = quoted(currentPartner(world)->name, answer.reply);
  tellPartners(world, line);
  logActivity(world, line);
}

}  // namespace

Refusal workRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= workEnergy) return {};
  return notEnoughEnergy("\nYou do not have enough energy to think of a work on your relationship right now");
}

Care workOnRelationship(Game& game) {
  WorldState& world = game.world;
  if (Refusal refusal = workRefusal(world)) return {.refusal = std::move(refusal)};
  constexpr std::int64_t lineRolls = 8;
  constexpr std::int64_t lineRoll = 4;
  const double gain = drawPoints(game, 1, 4);
  const std::size_t mood = drawMood(game);
  const Care care{.refusal = {}, .points = mood == missedMood ? 0 : gain};
  moveMeter(world, care.points);
  if (RandomRange(game.random, lineRolls) == lineRoll) tellPartners(world, workLine(game, mood));
  world.totalEnergyAvailable -= workEnergy;
  return care;
}

Refusal metflixRefusal(const WorldState& world) {
  if (!hasWeeklyOption(world, weeklyOption::metflix)) {
    return Notice{.title = "🎥 Subscription Required 🎥",
                  .message =
                      "\nYou need a Metflix subscription to watch. You can sign up for one under "
                      "\"Energy\" on the 4th tab.",
                  .brief = "Needs Metflix"};
  }
  if (world.totalEnergyAvailable >= metflixEnergy) return {};
  return notEnoughEnergy("\nYou do not have enough energy and would rather go to bed.");
}

Care metflixWith(Game& game) {
  WorldState& world = game.world;
  if (Refusal refusal = metflixRefusal(world)) return {.refusal = std::move(refusal)};
  const Care care{.refusal = {}, .points = drawPoints(game, 2, 8)};
  moveMeter(world, care.points);
  tellPartners(world, metflixLine(game, drawMood(game)));
  world.totalEnergyAvailable -= metflixEnergy;
  return care;
}

Refusal moneyRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= world.askForMoneyEnergyCost) return {};
  return notEnoughEnergy("\nYou do not have enough energy to ask your partner for cash money.");
}

MoneyAnswer askForMoney(Game& game) {
  WorldState& world = game.world;
  if (Refusal refusal = moneyRefusal(world)) return {.refusal = std::move(refusal)};
  world.totalEnergyAvailable -= world.askForMoneyEnergyCost;
  world.askForMoneyEnergyCost = std::min(world.askForMoneyEnergyCost + moneyStep, dearestMoney);
  const double amount = currentPartner(world)->weeklyEarnings * RandomUnit(game.random, 0.1, 0.3);
  if (RandomRange(game.random, 3) != 0) moveMeter(world, -drawPoints(game, 5, 15));
  MoneyAnswer answer;
  if (currentPartner(world)->relationshipStatus >= 0) {
    receiveMoney(game, answer, amount);
  } else {
    answer.separation = partnerLeaves(game, bank::goldDiggerLines, DepartureReason::money);
  }
  return answer;
}

bool canTryForBaby(const WorldState& world) {
  const Matches* const partner = currentPartner(world);
  return partner != nullptr && partner->relationshipState == bond::married && partner->timeToBirth < 0 &&
         std::ssize(world.saveAllChildList) < mostChildren;
}

Refusal babyRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= babyEnergy) return {};
  return notEnoughEnergy("\nYou do not have enough energy to try for a baby.");
}

BabyTry tryForBaby(Game& game) {
  WorldState& world = game.world;
  if (Refusal refusal = babyRefusal(world)) return {.refusal = std::move(refusal)};
  world.totalEnergyAvailable -= babyEnergy;
  if (RandomRange(game.random, 4) != 0) return {};
  world.saveAllMatchesList.edit(*partnerIndex(world)).timeToBirth = weeksOfPregnancy;
  const std::string line = tb::format("Event: You and {} are expecting a baby.", currentPartner(world)->name);
  tellPartners(world, line);
  logActivity(world, line);
  return {.refusal = {}, .isOnTheWay = true};
}

}  // namespace tb
