#include "core/career_start.h"

#include <algorithm>
#include <utility>

#include "core/save_store.h"
#include "core/signed_agent.h"
#include "core/variables.h"
#include "core/welcome_mail.h"

namespace tb {

namespace {

constexpr Int startingEnergy = 100;
constexpr Real basicNeedsAmount = 50.0;  // a week
constexpr Real fanBonusWithoutAgent = 1.0;

// Carries values over to the next career. Runs before the table's restart values are set, because those empty
// the vault.
void carryOver(WorldState& world) {
  world.totalCashAvailable = world.myVault;
  world.totalEnergyMax = startingEnergy + std::max<Int>(world.permanentEnergyUpgrade, 0);
  world.totalEnergyAvailable = world.totalEnergyMax;
  world.experience = static_cast<Real>(std::max<Int>(world.permanentExperience, 0));
}

// A launch does not read these keys, so memory does not show a change in them: they are removed from the
// store here.
void eraseUnreadKeys(SaveStore& store) {
  for (const Variable& variable : variables()) {
    if (!variable.isKept && variable.load == Load::never) store.remove(variable.key);
  }
}

}  // namespace

void chooseAge(Game& game, Int age) {
  game.world.ageCount = age;
  game.world.birthYear = firstYear - age;
}

Refusal confirmNewCareer(Game& game, const NewCareerForm& form) {
  if (form.myName.empty()) return Notice{"⚠️ Name Needed ⚠️", "Please enter your stage name/name."};
  WorldState& world = game.world;
  world.myName = form.myName;
  world.isMale = form.isMale;
  world.headshotImage = form.headshotImage;
  world.hasNoWayBack = form.hasNoWayBack;
  world.yearNumber = firstYear;
  world.enterPlayerDetails = 1;
  world.aboutDescription = form.aboutDescription;
  normaliseAgentFanBonus(game);
  sendWelcomeMail(game.world);
  return std::nullopt;
}

void restartCareer(Game& game) {
  carryOver(game.world);
  setRestartValues(game.world);
  eraseUnreadKeys(game.store);
  game.store.weeks().forget();
  ensureBasicNeeds(game);
  sendWelcomeMail(game.world);
}

void ensureBasicNeeds(Game& game) {
  List<WeeklyLineItem>& items = game.world.saveAllWeeklyLineItems;
  const bool there = std::ranges::any_of(
      items, [](const WeeklyLineItem& item) { return item.typeOfExpense == WeeklyLineItem::basicNeedsType; });
  if (there) return;
  items.push_back({.category = 0,
                   .title = "Basic Needs",
                   .amount = basicNeedsAmount,
                   .year = game.world.yearNumber,
                   .isExpense = true,
                   .typeOfExpense = WeeklyLineItem::basicNeedsType,
                   .energyBoost = 0});
}

void normaliseAgentFanBonus(Game& game) {
  if (signedAgent(game.world)) return;
  game.world.agentFanBonus = fanBonusWithoutAgent;
}

}  // namespace tb
