#pragma once

// The Metflix Top Ten: weekly charts of films and of series, with invented titles and the player's.

#include "core/game.h"

namespace tb {

inline constexpr std::size_t chartPlaces = 10;

// Advances a chart by a week: invented titles gain or lose popularity, the player's popular titles enter, the
// lowest leave, and every seventh week an invented title is added. Told when a title of the player's is
// placed for the first time. Films that leave are kept in `saveAllSavedTopTenList`.
void advanceFilmChart(Game& game);
void advanceSeriesChart(Game& game);

// Fills both charts with invented titles, once in a career. Does nothing when `saveBestsellerRankings` is 1.
void openCharts(Game& game);

[[nodiscard]] bool isInvented(const TopTen& entry);

// The views in a week at a popularity of 0 to 100.
[[nodiscard]] std::int64_t viewsAt(double popularity);

// The views of the entry's week. Those of the player's titles are not stored.
[[nodiscard]] std::int64_t weeklyViews(const TopTen& entry);

}  // namespace tb
