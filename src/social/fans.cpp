#include "social/fans.h"

#include <array>

#include "core/bands.h"
#include "core/talent_scores.h"

namespace tb {

namespace {

// The fans gained or lost in a week: least + RandomRange(spread).
struct DriftBand {
  std::int64_t from;  // fans
  std::int64_t upTo;
  std::int64_t least;
  std::int64_t spread;
};

constexpr std::array<DriftBand, 9> driftBands = {{
    {.from = 0, .upTo = 100, .least = 1, .spread = 3},
    {.from = 101, .upTo = 1'000, .least = 2, .spread = 4},
    {.from = 1'001, .upTo = 10'001, .least = 5, .spread = 6},
    {.from = 10'002, .upTo = 100'000, .least = 10, .spread = 91},
    {.from = 100'001, .upTo = 1'000'000, .least = 30, .spread = 271},
    {.from = 1'000'001, .upTo = 10'000'000, .least = 75, .spread = 676},
    {.from = 10'000'001, .upTo = 100'000'000, .least = 125, .spread = 1'126},
    {.from = 100'000'001, .upTo = 1'000'000'000, .least = 250, .spread = 2'251},
    {.from = 1'000'000'001, .upTo = 6'000'000'000, .least = 500, .spread = 4'501},
}};

// Nearly everybody is a fan already.
constexpr DriftBand fullHouse = {.from = 0, .upTo = 0, .least = 0, .spread = 15};

constexpr std::int64_t loyalFans = 1'000;  // a performer with up to this many loses none

constexpr std::int64_t weeksBetweenSwings = 4;
constexpr double maxSwing = 0.05;  // of all fans

std::int64_t drawDrift(Game& game) {
  const DriftBand* const found = bandOf(driftBands, game.world.totalFans);
  const DriftBand& band = found == nullptr ? fullHouse : *found;
  return band.least + RandomRange(game.random, band.spread);
}

// 1 for a month that brings fans, -1 for one that costs some, else 0.
std::int64_t drawDirection(RandomSource& random) {
  const std::int64_t roll = RandomRange(random, 101);
  if (roll >= 90) return 1;
  return roll >= 50 && roll <= 60 ? -1 : 0;
}

}  // namespace

void driftFans(Game& game) {
  WorldState& world = game.world;
  const std::int64_t step = drawDrift(game);
  const bool isGain = overallTalent(world) >= RandomRange(game.random, 101);
  const bool isLoss = !isGain && world.totalFans > loyalFans && world.totalFans > step;
  if (isGain) world.totalFans += step;
  if (isLoss) world.totalFans -= step;
  if (isGain || isLoss) world.trackFans.push_back(world.totalFans);
  if (world.trackFans.size() > trackedFans) world.trackFans.pop_front();
}

void swingFans(Game& game) {
  WorldState& world = game.world;
  if (world.weekNumber % weeksBetweenSwings != 0 || world.trackFans.empty()) return;
  const std::int64_t direction = drawDirection(game.random);
  if (direction == 0) return;
  const double share = RandomUnit(game.random, 0, maxSwing);
  const auto change = direction * static_cast<std::int64_t>(share * static_cast<double>(world.totalFans));
  const bool isFull = world.trackFans.size() >= trackedFans;
  // Added to the last entry, which differs from `totalFans` when a title has brought fans since.
  world.trackFans.push_back(world.trackFans.back() + change);
  if (isFull) world.trackFans.pop_front();
  world.totalFans += change;
}

}  // namespace tb
