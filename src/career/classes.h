#pragma once

// Acting classes at Julien. `saveAllCompletedClasses` holds all classes taken: a class runs while its
// `weeksRemaining` is at least 1 and costs energy each week.

#include <cstdint>
#include <vector>

#include "career/class_table.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

// A class on offer, with its terms.
struct ClassOption {
  const JulliardClass* offered;
  std::int64_t weeks;       // 4 to 8
  double cost;              // dollars, for the whole class
  std::int64_t energyCost;  // points per week
};

// The level open to the performer, 1 to 4, by the number of classes taken.
[[nodiscard]] std::int64_t classTier(const WorldState& world);

// Whether the performer ever signed up for the class.
[[nodiscard]] bool isTaken(const WorldState& world, std::int64_t classId);

// The fraction of the curriculum that was taken, 0 to 1.
[[nodiscard]] double completionPercentage(const WorldState& world);

// How many different classes of the curriculum are finished, 0 to 47.
[[nodiscard]] std::int64_t finishedClasses(const WorldState& world);

// The energy cost of the running classes, in points per week.
[[nodiscard]] std::int64_t classEnergy(const WorldState& world);

// Draws one to five different classes of the open level that were not taken yet, or fewer when fewer are
// left.
[[nodiscard]] std::vector<ClassOption> openClasses(Game& game);

// Why the performer cannot sign up: the class was taken already, the running classes need more energy than
// the job leaves, or there is not enough cash.
[[nodiscard]] Refusal classRefusal(const WorldState& world, const ClassOption& option);

// Signs up for a class: pays for it, adds it and logs it; or refuses.
Refusal signUpForClass(Game& game, const ClassOption& option);

// Runs a week of all classes. A class that ends gives its experience and is logged.
void advanceClasses(Game& game);

}  // namespace tb
