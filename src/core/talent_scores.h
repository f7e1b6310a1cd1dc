#pragma once

// The scores from which auditions, rehearsals and scenes are rolled. Traits are 1 and up, with 100 as the
// highest that can be bought; all results are in points.

#include <cstdint>

#include "core/game.h"

namespace tb {

// The level of the performer: the mean of the five traits in use and the smallest of them (at most 100), in
// whole points. One weak trait counts twice, which is what makes evening them out worth it.
[[nodiscard]] std::int64_t overallTalent(const WorldState& world);

// How the voice is today: 0 to three quarters of trait 5, to two decimals.
[[nodiscard]] double talentRoll(Game& game);

// One performance, to two decimals; x is usually a talentRoll(). Experience counts a hundredth.
[[nodiscard]] double performanceRoll(Game& game, double x);

// A scene in front of the camera: as a performance, but experience counts in full, up to 100.
[[nodiscard]] double sceneRoll(Game& game, double x);

// A score rounded to two decimals, as all of them are kept.
[[nodiscard]] double roundedScore(double score);

}  // namespace tb
