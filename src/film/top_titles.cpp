#include "film/top_titles.h"

#include <algorithm>

#include "core/descending.h"
#include "film/catalogue.h"

namespace tb {

namespace {

constexpr double ratingOfTheBest = 8.0;

std::vector<TopShow> topShows(const WorldState& world) {
  std::vector<TopShow> rows;
  for (const Film& film : world.saveAllFilmList) {
    if (film.typeOfFilm != filmType::series || film.imbdRating <= ratingOfTheBest) continue;
    rows.push_back({.filmId = film.filmId,
                    .title = film.title,
                    .imdbRating = film.imbdRating,
                    .seasonNumber = film.seasonNumber,
                    .imageString = film.imageString});
  }
  for (const TVRecord& record : tvRecords()) {
    rows.push_back({.title = record.title, .imdbRating = record.imdbRating});
  }
  sortDescending(rows, &TopShow::imdbRating);
  rows.resize(std::min(rows.size(), allTimeRanks));
  return rows;
}

template <class Row>
std::optional<std::size_t> placeIn(const std::vector<Row>& rows, std::int64_t filmId) {
  const auto found = std::ranges::find(rows, filmId, &Row::filmId);
  if (found == rows.end()) return std::nullopt;
  return static_cast<std::size_t>(found - rows.begin()) + 1;
}

}  // namespace

TopTitles topTitles(const WorldState& world) {
  return {.movies = highestGrossing(world), .shows = topShows(world)};
}

std::optional<std::size_t> placeOf(const TopTitles& lists, std::int64_t filmId) {
  const auto place = placeIn(lists.movies, filmId);
  return place ? place : placeIn(lists.shows, filmId);
}

}  // namespace tb
