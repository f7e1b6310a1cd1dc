#pragma once

// Acting classes at Julien. `saveAllCompletedClasses` holds every class ever taken: it runs while its
// `weeksRemaining` is at least 1 and stays in the list as done. A running class takes its energy each week.

#include <cstdint>
#include <vector>

#include "career/class_table.h"
#include "core/game.h"
#include "core/notice.h"

namespace tb {

// A class as it is offered today.
struct ClassOption {
  const JulliardClass* offered;
  std::int64_t weeks;       // 4 to 8
  double cost;              // dollars, for the whole class
  std::int64_t energyCost;  // each week
};

// The level that is open to the performer, 1 to 4, by the number of classes taken.
[[nodiscard]] std::int64_t classTier(const WorldState& world);

// Whether the performer has signed up for the class, now or ever.
[[nodiscard]] bool isTaken(const WorldState& world, std::int64_t classId);

// The part of the curriculum that was taken, 0 to 1.
[[nodiscard]] double completionPercentage(const WorldState& world);

// The energy that the running classes take each week, in points.
[[nodiscard]] std::int64_t classEnergy(const WorldState& world);

// Draws today's options: one to five different classes of the open level that were not taken yet, fewer when
// fewer are left.
[[nodiscard]] std::vector<ClassOption> openClasses(Game& game);

// Why the performer cannot sign up now: the class was taken already, the running classes take more energy
// than the job leaves, or the cash is missing.
[[nodiscard]] Refusal classRefusal(const WorldState& world, const ClassOption& option);

// Signs up for an option, or refuses: pays for it, adds the class, logs it. Writes cash, classes and log.
Refusal signUpForClass(Game& game, const ClassOption& option);

// A week of every running class. One that ends is told of and gives its experience. Writes the classes, and
// what an ended class changed.
void advanceClasses(Game& game);

}  // namespace tb
