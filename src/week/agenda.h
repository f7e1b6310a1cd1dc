#pragma once

// The agenda on the hub: what is due, what the player can do now, what is running, and last week's outcomes.
// When a rule gives the player something to do, add an item here. tests/journeys/beginner_test.cpp plays by
// this agenda.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "career/boosts.h"
#include "core/game.h"

namespace tb {

struct AgendaItem {
  enum class Kind : std::uint8_t {
    // Due this week or later
    audition,
    shoot,
    release,
    // Affordable now
    mail,          // came with the week that ended
    gift,          // has not been claimed
    lapse,         // the inbox is full, and its oldest e-mail is an offer
    neglect,       // the partner's meter is in its lowest band
    conversation,  // a single player has not written to a match
    negotiation,   // of a project's pay
    submissions,
    job,
    guild,
    footageReel,
    training,
    // Running
    contract,
    actingClass,
    answers,
  };
  Kind kind;
  std::int64_t week = 0;   // for due items: a value of `weekNumberForTracking`
  std::size_t index = 0;   // of the project in `saveAllAuditionList`, the class in `saveAllCompletedClasses`,
                           // the trait in `traits`, the e-mail in `saveAllEmailList`, or the match in
                           // `saveAllMatchesList`
  std::int64_t count = 0;  // new e-mails, affordable submissions, open submissions, or weeks left
  std::optional<Boost> boost = {};  // available for the project now
};

// Upcoming auditions, shoots and releases, soonest first.
[[nodiscard]] std::vector<AgendaItem> dueItems(const WorldState& world);

// Suggested actions, most useful first.
[[nodiscard]] std::vector<AgendaItem> openItems(const WorldState& world);

// The job, the classes and the open submissions.
[[nodiscard]] std::vector<AgendaItem> runningItems(const WorldState& world);

// The four steps of the first week; none in other weeks.
struct FirstSteps {
  bool hasClaimedGift = false;
  bool hasWork = false;
  bool hasSubmitted = false;
};
[[nodiscard]] std::optional<FirstSteps> firstSteps(const WorldState& world);

// An outcome of the week that ended; lists of them are sorted best first.
struct Outcome {
  enum class Kind : std::uint8_t { nominated, booked, opened, wrapped, paid, notSelected };
  Kind kind;
  std::size_t index = 0;   // of the project in `saveAllAuditionList`, or the award in `saveAllMovieAwards`
  double amount = 0;       // dollars paid for all titles
  std::int64_t count = 0;  // nominations, or lost roles
};
[[nodiscard]] std::vector<Outcome> lastWeeksOutcomes(const WorldState& world);

}  // namespace tb
