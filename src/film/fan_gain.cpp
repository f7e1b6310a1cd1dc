#include "film/fan_gain.h"

#include <array>
#include <limits>

#include "core/bands.h"

namespace tb {

namespace {

struct FameBand {
  std::int64_t upTo;  // fans
  double multiplier;
};

constexpr std::array<FameBand, 8> fameBands = {{
    {.upTo = 100, .multiplier = 1.05},
    {.upTo = 1'000, .multiplier = 1.1},
    {.upTo = 10'000, .multiplier = 1.15},
    {.upTo = 100'000, .multiplier = 1.2},
    {.upTo = 1'000'000, .multiplier = 1.3},
    {.upTo = 10'000'000, .multiplier = 1.4},
    {.upTo = 100'000'000, .multiplier = 1.5},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .multiplier = 1.6},
}};

struct BudgetBand {
  std::int64_t from;  // dollars
  std::int64_t upTo;
  double fewest;
  double most;
};

constexpr std::array<BudgetBand, 9> budgetBands = {{
    {.from = 0, .upTo = 100, .fewest = 0, .most = 4},
    {.from = 101, .upTo = 1'000, .fewest = 0, .most = 6},
    {.from = 1'001, .upTo = 10'001, .fewest = 0, .most = 20},
    {.from = 10'002, .upTo = 100'000, .fewest = 0, .most = 200},
    {.from = 100'001, .upTo = 1'000'000, .fewest = 25, .most = 600},
    {.from = 1'000'001, .upTo = 10'000'000, .fewest = 100, .most = 1'500},
    {.from = 10'000'001, .upTo = 100'000'000, .fewest = 200, .most = 2'500},
    {.from = 100'000'001, .upTo = 1'000'000'000, .fewest = 500, .most = 5'000},
    {.from = 1'000'000'001, .upTo = 6'000'000'000, .fewest = 1'000, .most = 10'000},
}};

// Budgets above six billion dollars attract hardly anyone.
constexpr BudgetBand hugeBudgetBand = {.from = 0, .upTo = 0, .fewest = 0, .most = 14};

}  // namespace

std::int64_t titleFanGain(Game& game, double budget, double quality, double weight) {
  const BudgetBand* const found = bandOf(budgetBands, static_cast<std::int64_t>(budget));
  const BudgetBand& band = found == nullptr ? hugeBudgetBand : *found;
  const double roll = RandomUnit(game.random, band.fewest, band.most);
  const double fame = bandOf(fameBands, game.world.totalFans)->multiplier;
  return static_cast<std::int64_t>(game.world.agentFanBonus * weight * (quality / 100) * fame * roll);
}

void gainFansFromTitle(Game& game, const Audition& project, double quality, double weight) {
  if (project.isPrincipal != rolePart::principal) return;
  game.world.fanGainCarry += titleFanGain(game, project.budget, quality, weight);
}

}  // namespace tb
