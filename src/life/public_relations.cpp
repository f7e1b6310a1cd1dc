#include "life/public_relations.h"

#include <algorithm>
#include <charconv>
#include <span>
#include <string_view>

#include "banks/dilemmas_banks.h"
#include "core/bands.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/text.h"

namespace tb {

namespace {

struct FameBand {
  std::int64_t upTo;  // the fame level
  std::size_t band;
};
constexpr std::array<FameBand, 10> fameBands = {{{.upTo = 10, .band = 0},
                                                 {.upTo = 20, .band = 1},
                                                 {.upTo = 30, .band = 2},
                                                 {.upTo = 40, .band = 3},
                                                 {.upTo = 50, .band = 4},
                                                 {.upTo = 60, .band = 5},
                                                 {.upTo = 70, .band = 6},
                                                 {.upTo = 80, .band = 7},
                                                 {.upTo = 94, .band = 8},
                                                 {.upTo = 100, .band = 9}}};
constexpr std::size_t highestBand = 10;

constexpr std::size_t scenariosPerBand = 6;
constexpr std::size_t rowsPerScenario = 10;

// Removes the first whole number from the text, with the blank behind it.
std::int64_t takeNumber(std::string_view& text) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const char* const rest = std::from_chars(text.data(), end, number).ptr;
  text = {std::min(rest + 1, end), end};
  return number;
}

EventScenario scenarioOf(std::span<const std::string, rowsPerScenario> rows) {
  std::string_view numbers = rows[0];
  EventScenario scenario;
  scenario.category = takeNumber(numbers);
  scenario.amount = static_cast<double>(takeNumber(numbers));
  scenario.reputation = takeNumber(numbers);
  scenario.questionTemplate = rows[1];
  scenario.optionA = rows[2];
  scenario.outcomesA = {rows[3], rows[4], rows[5]};
  scenario.optionB = rows[6];
  scenario.outcomesB = {rows[7], rows[8], rows[9]};
  return scenario;
}

}  // namespace

bool randomEventStep(Game& game) {
  constexpr std::int64_t weeksBetween = 3;
  constexpr std::int64_t rolls = 7;
  constexpr std::int64_t luckyRoll = 3;
  WorldState& world = game.world;
  if (world.randomEventShownThisWeek != 0 || world.weekNumber % weeksBetween != 0) return false;
  if (RandomRange(game.random, rolls) != luckyRoll) return false;
  world.randomEventShownThisWeek = 1;
  return true;
}

EventScenario drawEventScenario(Game& game) {
  const FameBand* const found = bandOf(fameBands, game.world.saveFameLevel);
  const std::size_t band = found == nullptr ? highestBand : found->band;
  const auto drawn = static_cast<std::size_t>(RandomRange(game.random, scenariosPerBand));
  const auto rows = rowsOf(bank::eventScenarios);
  EventScenario scenario =
      scenarioOf(rows.subspan((band * scenariosPerBand + drawn) * rowsPerScenario).first<rowsPerScenario>());
  scenario.questionTemplate = fill(scenario.questionTemplate, {{"name", game.world.myName}});
  return scenario;
}

Refusal eventChoiceRefusal(const WorldState& world, const EventScenario& scenario, EventChoice choice) {
  const bool isPaid = choice == EventChoice::a && scenario.amount > 0;
  if (!isPaid || world.totalCashAvailable >= scenario.amount) return {};
  return Notice{.title = "💰 Not Enough Cash",
                .message = "\nYou can't afford to bury this story.",
                .brief = tooLittleCash};
}

std::string chooseEventOption(Game& game, const EventScenario& scenario, EventChoice choice) {
  constexpr std::int64_t bestImage = 100;
  WorldState& world = game.world;
  const bool isA = choice == EventChoice::a;
  const std::string& outcome =
      RandomElement<std::string>(game.random, isA ? scenario.outcomesA : scenario.outcomesB);
  if (isA) world.totalCashAvailable -= scenario.amount;
  const std::int64_t change = isA ? scenario.reputation : -scenario.reputation;
  world.publicImage = std::clamp<std::int64_t>(world.publicImage + change, 0, bestImage);
  std::string result = tb::format("{} You {} As a result, {}{}{}", scenario.questionTemplate,
                                  isA ? scenario.optionA : scenario.optionB, outcome,
                                  isA ? " and your image improves by +" : " and your image is damaged by -",
                                  scenario.reputation);
  logActivity(world, result);
  return result;
}

}  // namespace tb
