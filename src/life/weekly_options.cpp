#include "life/weekly_options.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/number_style.h"
#include "core/stop.h"
#include "core/weekly_option.h"

namespace tb {

namespace {

constexpr std::array<WeeklyOption, 2> options = {{
    {.id = weeklyOption::moviePass, .title = "Movie Pass", .energyBoost = 0, .cost = 29},
    {.id = weeklyOption::theCameo, .title = "The Cameo", .energyBoost = 0, .cost = 100},
}};

}  // namespace

const WeeklyOption& weeklyOptionWith(std::int64_t id) {
  for (const WeeklyOption& option : options) {
    if (option.id == id) return option;
  }
  stopTheGame("there is no such weekly option");
}

Refusal weeklyOptionRefusal(const Game& game, std::int64_t id) {
  const WeeklyOption& option = weeklyOptionWith(id);
  if (game.world.totalCashAvailable >= option.cost) return {};
  return Notice{.title = "💰 Not Enough Cash 💰",
                .message = "Selecting this option requires an initial payment of " +
                           wholeMoney(game.locale, option.cost) + " which you do not currently have.",
                .brief = "Not enough cash"};
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
