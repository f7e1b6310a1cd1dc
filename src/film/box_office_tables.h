#pragma once

// Box office tables for screens, computed from the records and never saved.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"

namespace tb {

constexpr std::size_t allTimeRanks = 250;  // titles in an all-time ranking

// A film in theaters. Grosses are in dollars, for all markets.
struct InTheaters {
  std::int64_t filmId = 0;
  std::string title;
  double weekendEarnings = 0;  // of the latest week, which can be the opening
  double totalGross = 0;
  std::string imageString;
  std::string description;
};

// A film in a ranking by gross. Built-in films have filmId -1 and budget 0.
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

// The player's films in theaters, from week 1 to 7 after the opening, sorted by descending latest week.
[[nodiscard]] std::vector<InTheaters> inTheaters(const WorldState& world);

// All films of the player that opened, by descending gross.
[[nodiscard]] std::vector<BoxOfficeWeekends> filmsByGross(const WorldState& world);

// The 250 highest-grossing films: the built-in ones and the player's films that opened with more than 50
// million dollars in a market. Films with the same title are added together.
[[nodiscard]] std::vector<BoxOfficeWeekends> highestGrossing(const WorldState& world);

// A film's gross per week in all markets, starting with the opening.
[[nodiscard]] std::vector<double> weeklyTakings(const WorldState& world, std::int64_t filmId);

// The gross in percent of the budget; 0 without a budget.
[[nodiscard]] double returnOf(double gross, double budget);

}  // namespace tb
