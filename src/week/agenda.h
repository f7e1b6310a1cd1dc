#pragma once

// What is next: what is due, what the week still has room for, what runs by itself, and what the last week
// brought. The hub shows these lists; what a player who follows them gets is tried in tests/journeys. A rule
// that gives the player something to do adds its item here.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "career/boosts.h"
#include "core/game.h"

namespace tb {

struct AgendaItem {
  enum class Kind : std::uint8_t {
    // Due in a week to come, or in this one.
    audition,
    shoot,
    release,
    // What there is energy or cash for now.
    submissions,
    job,
    guild,
    footageReel,
    training,
    // What runs by itself.
    contract,
    actingClass,
    answers,
  };
  Kind kind;
  std::int64_t week = 0;   // of what is due: a value of `weekNumberForTracking`
  std::size_t index = 0;   // the project in `saveAllAuditionList`, the class in `saveAllCompletedClasses`, or
                           // the trait in `traits`
  std::int64_t count = 0;  // submissions that there is energy for, answers awaited, weeks left
  std::optional<Boost> boost = {};  // what can be done for the project now
};

// Auditions, shoots and releases to come, the soonest first.
[[nodiscard]] std::vector<AgendaItem> dueItems(const WorldState& world);

// What the player can do now to get on, the most helpful first.
[[nodiscard]] std::vector<AgendaItem> openItems(const WorldState& world);

// The job, the classes and the answers that are awaited.
[[nodiscard]] std::vector<AgendaItem> runningItems(const WorldState& world);

// The three steps of the first week; nothing in any other.
struct FirstSteps {
  bool hasWork = false;
  bool hasSubmitted = false;
};
[[nodiscard]] std::optional<FirstSteps> firstSteps(const WorldState& world);

// What the week that ended brought, the best first.
struct Outcome {
  enum class Kind : std::uint8_t { booked, opened, wrapped, paid, notSelected };
  Kind kind;
  std::size_t index = 0;   // the project in `saveAllAuditionList`
  double amount = 0;       // dollars paid, of all titles
  std::int64_t count = 0;  // roles not got
};
[[nodiscard]] std::vector<Outcome> lastWeeksOutcomes(const WorldState& world);

}  // namespace tb
