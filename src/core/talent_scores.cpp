#include "core/talent_scores.h"

#include <algorithm>
#include <cmath>

namespace tb {

namespace {

constexpr double maxScore = 100;

// The performance score from x, the traits and the weighted experience.
double roll(Game& game, double x, double experience) {
  const WorldState& world = game.world;
  const double craft =
      static_cast<double>(world.talentTrait2 + world.talentTrait3 + world.talentTrait4) / 3.0;
  const double charisma = static_cast<double>(world.talentTrait1) * 0.75;
  const double ability = x + craft + charisma;

  const double best = (experience + ability) * 0.25;
  double worst = std::min(experience, std::min({craft, charisma, maxScore}));
  if (best < worst) worst = best * 0.5;
  const double luck = RandomUnit(game.random, worst, best);
  return roundedScore((experience + ability + luck) / 5);
}

}  // namespace

std::int64_t overallTalent(const WorldState& world) {
  const std::int64_t sum =
      world.talentTrait1 + world.talentTrait2 + world.talentTrait3 + world.talentTrait4 + world.talentTrait5;
  const std::int64_t weakest =
      std::min({world.talentTrait1, world.talentTrait2, world.talentTrait3, world.talentTrait4,
                world.talentTrait5, static_cast<std::int64_t>(maxScore)});
  return (sum + weakest) / 6;
}

double talentRoll(Game& game) {
  const double draw = RandomUnit(game.random, 0, static_cast<double>(game.world.talentTrait5));
  return roundedScore(draw * 0.75);
}

double performanceRoll(Game& game, double x) { return roll(game, x, game.world.experience / 100); }

double sceneRoll(Game& game, double x) { return roll(game, x, std::min(game.world.experience, maxScore)); }

double roundedScore(double score) { return std::round(score * 100) / 100; }

}  // namespace tb
