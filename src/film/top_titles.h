#pragma once

// The best of all time: the 250 films that took most, and the 250 series that are rated highest, the
// player's among the others.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/game.h"
#include "film/box_office_tables.h"

namespace tb {

// A series, or a season of the player's. filmId is -1 for the built-in ones.
struct TopShow {
  std::int64_t filmId = -1;
  std::string title;
  double imdbRating = 0;  // up to 10
  std::int64_t seasonNumber = -1;
  std::string imageString;
};

struct TopTitles {
  std::vector<BoxOfficeWeekends> movies;  // highest worldwide gross first
  std::vector<TopShow> shows;             // highest rating first
};

// Both lists as they stand today: of films those that opened above 50 million in a market, of series the
// seasons rated above 8.0.
[[nodiscard]] TopTitles topTitles(const WorldState& world);

// The film's place on either list, from 1; nothing when it is on none.
[[nodiscard]] std::optional<std::size_t> placeOf(const TopTitles& lists, std::int64_t filmId);

}  // namespace tb
