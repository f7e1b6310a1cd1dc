#include "career/showreel.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include "banks/draw.h"
#include "banks/talent_banks.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/talent_scores.h"

namespace tb {

namespace {

// Three perfect scenes, a perfect level and the best cut add up to 425 points. The divisor is the same for
// fewer scenes, so short reels score low; the strongest actors can exceed 100.
constexpr double perfectReelPoints = 425;

constexpr double minFootageCut = 10;
constexpr double minSceneCut = 0;
constexpr double bestCut = 25;

std::int64_t scoreOfReel(const WorldState& world, std::int64_t scenes, double cut) {
  const double points = static_cast<double>(scenes + overallTalent(world)) + cut;
  return static_cast<std::int64_t>(points / perfectReelPoints * 100);
}

std::int64_t reelScore(Game& game, std::int64_t scenes, double worstCut) {
  return scoreOfReel(game.world, scenes, RandomUnit(game.random, worstCut, bestCut));
}

std::int64_t footageSum(const WorldState& world, std::span<const std::int64_t> filmIds) {
  std::int64_t sum = 0;
  for (const std::size_t index : allPerformanceFootage(world)) {
    const Audition& work = world.saveAllAuditionList[index];
    if (std::ranges::contains(filmIds, work.filmId)) sum += static_cast<std::int64_t>(work.performanceRating);
  }
  return sum;
}

std::int64_t shootScene(Game& game) { return static_cast<std::int64_t>(sceneRoll(game, talentRoll(game))); }

Refusal payFor(Game& game, double cost) {
  if (Refusal refusal = reelRefusal(game.world, cost)) return refusal;
  game.world.totalCashAvailable -= cost;
  return {};
}

Refusal checkScenes(const ScenePackage& package, std::size_t scenes) {
  if (scenes > package.scenes) {
    return Notice{.title = "🎥 Too Many Scenes 🎥",
                  .message = tb::format("\nYou can only have up to {} for this package.",
                                        counted(static_cast<std::int64_t>(package.scenes), "scene"))};
  }
  if (scenes == 0) {
    return Notice{.title = "🎥 No Scene Written 🎥",
                  .message = "\nTell the production company what happens in at least one scene."};
  }
  return {};
}

}  // namespace

std::vector<std::size_t> allPerformanceFootage(const WorldState& world) {
  std::vector<std::size_t> footage;
  for (std::size_t index = 0; index < world.saveAllAuditionList.size(); ++index) {
    const Audition& work = world.saveAllAuditionList[index];
    if (work.funnelStage == funnel::wrapped && work.didAct == 1) footage.push_back(index);
  }
  return footage;
}

void openShowreel(Game& game) {
  // An imported save can hold one list without the other; entries without a counterpart are dropped.
  WorldState& world = game.world;
  while (world.newScenesProduced.size() > world.newSceneDescriptions.size())
    world.newScenesProduced.pop_back();
  while (world.newSceneDescriptions.size() > world.newScenesProduced.size()) {
    world.newSceneDescriptions.pop_back();
  }
}

Refusal roomForScene(std::size_t packageIndex, std::size_t scenes) {
  return checkScenes(scenePackages[packageIndex], scenes + 1);
}

Refusal chooseFootage(std::vector<std::int64_t>& filmIds, std::int64_t filmId) {
  if (std::erase(filmIds, filmId) > 0) return {};
  if (filmIds.size() >= maxFootage) {
    return Notice{.title = "⚡️ Limit Reached ⚡️",
                  .message = "\nYou can only select up to 3 scenes for your showreel."};
  }
  filmIds.push_back(filmId);
  return {};
}

std::int64_t previewFootageReel(Game& game, std::span<const std::int64_t> filmIds) {
  return reelScore(game, footageSum(game.world, filmIds), minFootageCut);
}

std::int64_t likelyFootageScore(const WorldState& world) {
  std::vector<std::int64_t> scores;
  for (const std::size_t index : allPerformanceFootage(world)) {
    scores.push_back(static_cast<std::int64_t>(world.saveAllAuditionList[index].performanceRating));
  }
  if (scores.empty()) return 0;
  const std::size_t chosen = std::min(scores.size(), maxFootage);
  std::ranges::partial_sort(scores, scores.begin() + static_cast<std::ptrdiff_t>(chosen), std::greater{});
  scores.resize(chosen);
  return scoreOfReel(world, std::reduce(scores.begin(), scores.end()), (minFootageCut + bestCut) / 2);
}

Refusal reelRefusal(const WorldState& world, double cost) {
  if (world.totalCashAvailable >= cost) return {};
  return Notice{.title = "💰 Not Enough Cash! 💰",
                .message = "\nYou don't have enough cash to pay for a new showreel.",
                .brief = tooLittleCash};
}

Refusal buildShowreelFromFootage(Game& game, std::span<const std::int64_t> filmIds, std::int64_t tempScore) {
  if (filmIds.empty()) {
    return Notice{.title = "🎞️ No Footage Selected 🎞️",
                  .message = "\nSelect at least one scene of your finished work for the showreel."};
  }
  if (Refusal refusal = payFor(game, footageReelCost)) return refusal;

  WorldState& world = game.world;
  world.showreelScore = tempScore;
  logActivity(world, tb::format("You updated your showreel using existing footage, and it’s now rated {}",
                                world.showreelScore));
  return {};
}

Refusal produceShowreelScenes(Game& game, std::size_t packageIndex,
                              std::span<const std::string> sceneDescriptions,
                              std::span<const std::int64_t> footageFilmIds) {
  const ScenePackage& package = scenePackages[packageIndex];
  if (Refusal refusal = checkScenes(package, sceneDescriptions.size())) return refusal;
  if (Refusal refusal = payFor(game, package.cost)) return refusal;

  // Replaces the scenes of the previous reel.
  WorldState& world = game.world;
  world.newScenesProduced.clear();
  world.newSceneDescriptions.clear();
  std::int64_t sum = 0;
  for (const std::string& description : sceneDescriptions) {
    const std::int64_t score = shootScene(game);
    world.newScenesProduced.push_back(score);
    world.newSceneDescriptions.push_back(description);
    sum += score;
  }
  world.existingFootageScore = static_cast<double>(sum);
  if (!footageFilmIds.empty()) sum = footageSum(world, footageFilmIds);

  world.showreelScore = reelScore(game, sum, minSceneCut);
  logActivity(
      world, fill(drawFreshRow(game, bank::showreelScene), {{"amount", wholeMoney(game.locale, package.cost)},
                                                            {"description", joinedWithAnd(sceneDescriptions)},
                                                            {"n", std::to_string(world.showreelScore)}}));
  return {};
}

}  // namespace tb
