#include "life/weekly_options.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/house_notices.h"
#include "core/number_style.h"
#include "core/stop.h"
#include "core/weekly_option.h"

namespace tb {

namespace {

constexpr std::array<WeeklyOption, 17> weeklyTable = {{
    {weeklyOption::metflix, "Metflix", 0, 16, "Entertainment", "Unlocks Metflix"},
    {101, "Spotfi", 1, 18, "Entertainment", ""},
    {102, "Candy Box", 1, 25, "Food", ""},
    {weeklyOption::moviePass, "Movie Pass", 0, 29, "Entertainment", "Unlocks Patron"},
    {104, "Barber", 1, 45, "Beauty", ""},
    {105, "Skincare", 1, 75, "Beauty", ""},
    {106, "Wine Club", 2, 100, "Food", "Must be 21", OptionNeed::age},
    {107, "Fitness Planet", 2, 149, "Health", ""},
    {108, "Therapy", 2, 199, "Health", ""},
    {109, "Meal Kit", 2, 350, "Food", ""},
    {110, "Personal Trainer", 2, 500, "Health", ""},
    {111, "Housekeeper", 2, 700, "Home", "Must own property", OptionNeed::property},
    {112, "House Chef", 3, 1500, "Food", "Must own property", OptionNeed::property},
    {113, "Driver", 3, 2500, "Travel", "Must own a vehicle", OptionNeed::vehicle},
    {114, "Celebrity Stylist", 3, 4000, "Beauty", "Must be A-List", OptionNeed::fame},
    {115, "Yellowstone Club", 3, 7500, "Club", "Must be A-List", OptionNeed::fame},
    {weeklyOption::theCameo, "The Cameo", 0, 100, "Club", "Start making fan videos"},
}};

constexpr std::int64_t minAge = 21;        // years
constexpr std::int64_t minFameLevel = 81;  // "A-"

}  // namespace

std::span<const WeeklyOption> weeklyOptions() { return weeklyTable; }

const WeeklyOption& weeklyOptionWith(std::int64_t id) {
  for (const WeeklyOption& option : weeklyTable) {
    if (option.id == id) return option;
  }
  stopTheGame("there is no such weekly option");
}

bool isMet(const WorldState& world, OptionNeed need) {
  switch (need) {
    case OptionNeed::age:
      return world.ageCount >= minAge;
    case OptionNeed::property:
      return !world.saveAllPropertyList.empty();
    case OptionNeed::vehicle:
      return !world.saveAllTransportationOwnedList.empty();
    case OptionNeed::fame:
      return world.saveFameLevel >= minFameLevel;
    case OptionNeed::nothing:
      return true;
  }
  return true;
}

Refusal weeklyOptionRefusal(const Game& game, std::int64_t id) {
  const WeeklyOption& option = weeklyOptionWith(id);
  if (!isMet(game.world, option.need)) return requirementsNotMet(std::string(option.requirement));
  if (game.world.totalCashAvailable >= option.cost) return {};
  return Notice{.title = "💰 Not Enough Cash 💰",
                .message = "Selecting this option requires an initial payment of " +
                           wholeMoney(game.locale, option.cost) + " which you do not currently have.",
                .brief = tooLittleCash};
}

Refusal buyWeeklyOption(Game& game, std::int64_t id) {
  if (Refusal refusal = weeklyOptionRefusal(game, id)) return refusal;
  cancelWeeklyOption(game, id);
  const WeeklyOption& option = weeklyOptionWith(id);
  WorldState& world = game.world;
  world.totalEnergyMax += option.energyBoost;
  world.saveAllWeeklyLineItems.push_back({.category = WeeklyLineItem::lifestyleCategory,
                                          .title = std::string(option.title),
                                          .amount = option.cost,
                                          .year = world.yearNumber,
                                          .typeOfExpense = id,
                                          .energyBoost = option.energyBoost});
  world.totalCashAvailable -= option.cost;
  return {};
}

void cancelWeeklyOption(Game& game, std::int64_t id) {
  WorldState& world = game.world;
  world.saveAllWeeklyLineItems.erase_if([&](const WeeklyLineItem& item) {
    if (item.category != WeeklyLineItem::lifestyleCategory || item.typeOfExpense != id) return false;
    world.totalEnergyMax -= item.energyBoost;
    return true;
  });
}

}  // namespace tb
