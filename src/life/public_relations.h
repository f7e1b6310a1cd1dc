#pragma once

// Public relations: now and then a story about the performer is about to go around, and there are two ways to
// meet it.

#include <array>
#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

struct EventScenario {
  std::string questionTemplate;  // what has happened
  std::string optionA;           // reads on after "You", and has its own final mark
  std::string optionB;
  std::int64_t category = 0;               // the fame band, 0 to 10
  double amount = 0;                       // the price of option A in dollars; 0 when nothing is paid
  std::int64_t reputation = 0;             // added by option A, taken by option B
  std::array<std::string, 3> outcomesA{};  // clauses without a final mark
  std::array<std::string, 3> outcomesB{};
};

enum class EventChoice : std::uint8_t { a, b };

// Whether a story breaks now, while the summary appears: by chance in every third week of the year, and at
// most once a week. Draws in such a week only.
[[nodiscard]] bool randomEventStep(Game& game);

// Draws one of the six dilemmas for the performer's fame.
[[nodiscard]] EventScenario drawEventScenario(Game& game);

// Why the option can't be chosen: not enough cash to pay for it. Option B is always free.
[[nodiscard]] Refusal eventChoiceRefusal(const WorldState& world, const EventScenario& scenario,
                                         EventChoice choice);

// Chooses an option: pays for it, moves `publicImage` and keeps it from 0 to 100, and logs the result, which
// is returned. The choice must not be refused.
std::string chooseEventOption(Game& game, const EventScenario& scenario, EventChoice choice);

}  // namespace tb
