#pragma once

// The scores of auditions, rehearsals and scenes, in points. Traits are 1 and up; 100 is the most that can be
// bought.

#include <cstdint>

#include "core/game.h"

namespace tb {

// The performer's level in whole points: the mean of the five traits and the smallest of them (at most 100).
// The weakest trait counts twice, which rewards balanced traits.
[[nodiscard]] std::int64_t overallTalent(const WorldState& world);

// A draw from 0 to three quarters of trait 5 (voice), to two decimals.
[[nodiscard]] double talentRoll(Game& game);

// A performance score, to two decimals; x is usually a talentRoll(). Experience has a weight of 0.01.
[[nodiscard]] double performanceRoll(Game& game, double x);

// The score of a filmed scene: like a performance, but experience has full weight, up to 100.
[[nodiscard]] double sceneRoll(Game& game, double x);

// A score rounded to two decimals, as scores are stored.
[[nodiscard]] double roundedScore(double score);

}  // namespace tb
