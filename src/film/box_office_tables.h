#pragma once

// The box office as its screens list it. Computed from the records when a screen opens, never saved.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"

namespace tb {

// A film that the cinemas are showing. Grosses in dollars, all markets together.
struct InTheaters {
  std::int64_t filmId = 0;
  std::string title;
  double weekendEarnings = 0;  // of the latest week; the opening in the first one
  double totalGross = 0;
  std::string imageString;
  std::string description;
};

// A film in a ranking by gross. filmId is -1 and budget 0 for the built-in films of all time.
struct BoxOfficeWeekends {
  std::int64_t filmId = -1;
  std::string title;
  std::int64_t yearReleased = 0;
  double weekendEarnings = 0;  // the opening
  double totalGross = 0;
  double domesticGross = 0;
  std::string imageString;
  double budget = 0;
};

// The player's films while they are on show: from the week after the opening for seven weeks, until the last
// takings are in. The highest latest weekend first.
[[nodiscard]] std::vector<InTheaters> inTheaters(const WorldState& world);

// All of the player's films that opened, highest gross first.
[[nodiscard]] std::vector<BoxOfficeWeekends> filmsByGross(const WorldState& world);

// The 250 highest-grossing films of all time: the built-in ones, and the player's that opened above 50
// million in some market, those of one title counted together.
[[nodiscard]] std::vector<BoxOfficeWeekends> highestGrossing(const WorldState& world);

// A film's takings in all markets together: the opening, then a week each.
[[nodiscard]] std::vector<double> weeklyTakings(const WorldState& world, std::int64_t filmId);

// What a film took for what it cost, in percent of the budget; 0 without a budget.
[[nodiscard]] double returnOf(double gross, double budget);

}  // namespace tb
