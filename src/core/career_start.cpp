#include "core/career_start.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "core/save.h"
#include "core/signed_agent.h"

namespace tb {

namespace {

constexpr Int startingEnergy = 100;
constexpr Real basicNeedsAmount = 50.0;  // a week
constexpr Real fanBonusWithoutAgent = 1.0;

// What outlives a career. Before the table's values are set, because they empty the vault.
void carryOver(Game& game) {
  WorldState& world = game.world;
  world.totalCashAvailable = world.myVault;
  world.totalEnergyMax = startingEnergy + std::max<Int>(world.permanentEnergyUpgrade, 0);
  world.totalEnergyAvailable = world.totalEnergyMax;
  world.experience = static_cast<Real>(std::max<Int>(world.permanentExperience, 0));
  save<&WorldState::totalCashAvailable, &WorldState::totalEnergyMax, &WorldState::totalEnergyAvailable,
       &WorldState::experience>(game);
}

void setRestartValues(Game& game) {
  forEachVariable([&]<auto Member>(const auto&, const auto& restart, Load) {
    if constexpr (!std::is_same_v<decltype(restart), const Kept&>) game.world.*Member = restart;
  });
  forEachRuntimeVariable([&]<auto Member>(const auto&, const auto& restart) {
    if constexpr (!std::is_same_v<decltype(restart), const Kept&>) game.world.*Member = restart;
  });
  for (const Variable& variable : variables) {
    if (!variable.isKept) saveVariables(game, {{&variable}});
  }
}

}  // namespace

void chooseAge(Game& game, Int age) {
  game.world.ageCount = age;
  game.world.birthYear = firstYear - age;
  save<&WorldState::ageCount, &WorldState::birthYear>(game);
}

Refusal confirmNewCareer(Game& game, const NewCareerForm& form) {
  if (form.myName.empty()) return Notice{"⚠️ Name Needed ⚠️", "Please enter your stage name/name."};
  WorldState& world = game.world;
  world.myName = form.myName;
  world.isMale = form.isMale;
  world.headshotImage = form.headshotImage;
  world.yearNumber = firstYear;
  world.enterPlayerDetails = 1;
  world.aboutDescription = form.aboutDescription;
  save<&WorldState::enterPlayerDetails, &WorldState::yearNumber, &WorldState::isMale, &WorldState::birthYear,
       &WorldState::aboutDescription, &WorldState::myName, &WorldState::headshotImage>(game);
  normaliseAgentFanBonus(game);
  return std::nullopt;
}

void restartCareer(Game& game) {
  carryOver(game);
  setRestartValues(game);
  ensureBasicNeeds(game);
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
  save<&WorldState::saveAllWeeklyLineItems>(game);
}

void normaliseAgentFanBonus(Game& game) {
  if (signedAgent(game.world)) return;
  game.world.agentFanBonus = fanBonusWithoutAgent;
  save<&WorldState::agentFanBonus>(game);
}

}  // namespace tb
