#pragma once

// The all-time lists: the 250 films with the highest gross and the 250 series with the highest rating,
// including the player's.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/game.h"
#include "film/box_office_tables.h"

namespace tb {

// A built-in series (filmId -1) or a season of the player's.
struct TopShow {
  std::int64_t filmId = -1;
  std::string title;
  double imdbRating = 0;  // up to 10
  std::int64_t seasonNumber = -1;
  std::string imageString;
};

struct TopTitles {
  std::vector<BoxOfficeWeekends> movies;  // by descending worldwide gross
  std::vector<TopShow> shows;             // by descending rating
};

// Computes both lists. The player's films need an opening above 50 million dollars in a market, seasons a
// rating above 8.0.
[[nodiscard]] TopTitles topTitles(const WorldState& world);

// The film's rank on either list, 1 and up; nothing when it is on neither.
[[nodiscard]] std::optional<std::size_t> placeOf(const TopTitles& lists, std::int64_t filmId);

}  // namespace tb
