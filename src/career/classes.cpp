#include "career/classes.h"

#include <algorithm>

#include "banks/draw.h"
#include "banks/talent_banks.h"
#include "core/bands.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"

namespace tb {

namespace {

// The number of taken classes up to which each level is open.
struct TierBand {
  std::int64_t upTo;
  std::int64_t tier;
};
constexpr std::array<TierBand, 3> tiers = {
    {{.upTo = 17, .tier = 1}, {.upTo = 27, .tier = 2}, {.upTo = 38, .tier = 3}}};
constexpr std::int64_t maxTier = 4;

constexpr std::int64_t maxOptions = 5;
constexpr int maxDraws = 100;              // attempts to draw different options
constexpr std::int64_t minClassWeeks = 4;  // weeks
constexpr std::int64_t maxClassWeeks = 8;

std::vector<const JulliardClass*> classesOfLevel(std::int64_t level) {
  std::vector<const JulliardClass*> pool;
  for (const JulliardClass& row : julliardClasses) {
    if (row.classLevel == level) pool.push_back(&row);
  }
  return pool;
}

ClassOption withTerms(RandomSource& random, const JulliardClass& row) {
  const std::int64_t weeks = RandomBetween(random, minClassWeeks, maxClassWeeks);
  const std::int64_t energy = 4 * row.classLevel + 10 + RandomRange(random, 4);
  return {.offered = &row,
          .weeks = weeks,
          .cost = static_cast<double>(280 * weeks * (row.classLevel + 1) + 275),
          .energyCost = energy};
}

}  // namespace

bool isTaken(const WorldState& world, std::int64_t classId) {
  return std::ranges::contains(world.saveAllCompletedClasses, classId, &ActingClass::classId);
}

std::int64_t finishedClasses(const WorldState& world) {
  return std::ranges::count_if(julliardClasses, [&](const JulliardClass& row) {
    return std::ranges::any_of(world.saveAllCompletedClasses, [&](const ActingClass& taken) {
      return taken.classId == row.id && taken.weeksRemaining < 1;
    });
  });
}

std::int64_t classEnergy(const WorldState& world) {
  std::int64_t energy = 0;
  for (const ActingClass& running : world.saveAllCompletedClasses) {
    if (running.weeksRemaining >= 1) energy += running.energyCost;
  }
  return energy;
}

std::int64_t classTier(const WorldState& world) {
  const std::int64_t taken = std::ssize(world.saveAllCompletedClasses);
  const TierBand* const band = bandOf(tiers, taken);
  return band != nullptr ? band->tier : maxTier;
}

double completionPercentage(const WorldState& world) {
  return static_cast<double>(world.saveAllCompletedClasses.size()) /
         static_cast<double>(julliardClasses.size());
}

std::vector<ClassOption> openClasses(Game& game) {
  const std::vector<const JulliardClass*> pool = classesOfLevel(classTier(game.world));
  const std::int64_t wanted = 1 + RandomRange(game.random, maxOptions);
  std::vector<ClassOption> options;
  for (int draw = 0; draw < maxDraws && std::ssize(options) < wanted; ++draw) {
    const JulliardClass& row = *RandomElement<const JulliardClass*>(game.random, pool);
    const bool isOffered = std::ranges::contains(options, &row, &ClassOption::offered);
    if (!isOffered && !isTaken(game.world, row.id)) options.push_back(withTerms(game.random, row));
  }
  return options;
}

Refusal classRefusal(const WorldState& world, const ClassOption& option) {
  if (isTaken(world, option.offered->id)) {
    return Notice{.title = "🎭 Already Signed Up 🎭",
                  .message = "You have already signed up or completed this class.",
                  .brief = "Signed up"};
  }
  // The new class's own energy cost is not checked, on purpose: one class too many is possible.
  if (classEnergy(world) > world.totalEnergyMax - world.weeklyEnergyCost) {
    return Notice{
        .title = "⚡️ Not Enough Weekly Energy ⚡️",
        .message = tb::format("You do not have enough energy each week to sign up for this class. You "
                              "are currently losing -{} energy each week.",
                              classEnergy(world) + world.weeklyEnergyCost),
        .brief = "Too little weekly energy"};
  }
  if (world.totalCashAvailable < option.cost) {
    return notEnoughCash("You do not have enough cash for the is class.");
  }
  return {};
}

Refusal signUpForClass(Game& game, const ClassOption& option) {
  WorldState& world = game.world;
  if (Refusal refusal = classRefusal(world, option)) return refusal;

  world.totalCashAvailable -= option.cost;
  world.saveAllCompletedClasses.push_back({.classId = option.offered->id,
                                           .energyCost = option.energyCost,
                                           .weeksTotal = option.weeks,
                                           .weeksRemaining = option.weeks,
                                           .experience = option.offered->percentage,
                                           .level = option.offered->classLevel,
                                           .cost = static_cast<std::int64_t>(option.cost),
                                           .yearStarted = world.yearNumber});
  logActivity(world, fill(drawFreshRow(game, bank::classSignUp), {{"title", option.offered->title},
                                                                  {"code", option.offered->classCode},
                                                                  {"weeks", std::to_string(option.weeks)}}));
  return {};
}

void advanceClasses(Game& game) {
  WorldState& world = game.world;
  for (std::size_t index = 0; index < world.saveAllCompletedClasses.size(); ++index) {
    if (world.saveAllCompletedClasses[index].weeksRemaining < 1) continue;
    ActingClass& running = world.saveAllCompletedClasses.edit(index);
    running.weeksRemaining -= 1;
    if (running.weeksRemaining > 0) continue;
    const JulliardClass* finished = classWithId(running.classId);
    logLine(world, NewsKind::classDone,
            tb::format("You finished Drama {}", finished == nullptr ? "" : finished->classCode));
    world.experience += running.experience;
  }
}

}  // namespace tb
