#include "film/popularity_drift.h"

#include <algorithm>

namespace tb {

namespace {

// Range of the drawn threshold for a rating; it can exceed the highest rating.
constexpr double minThreshold = 1;
constexpr double maxThreshold = 13;
constexpr double popularityPerRating =
    0.5;  // points of popularity per point of rating above or below the threshold

constexpr double minDecay = 0.1;  // points of popularity per week
constexpr double maxDecay = 0.4;
constexpr double maxPopularity = 100;

bool drifts(const WorldState& world, const Film& film) {
  const bool canDrift = film.typeOfFilm == filmType::feature || film.typeOfFilm == filmType::series;
  return canDrift && film.weekReleased < world.weekNumberForTracking && film.currentPopularity > 0;
}

double changeOfWeek(Game& game, const Film& film) {
  const bool isJudged = RandomRange(game.random, 3) == 1;
  if (!isJudged) return -RandomUnit(game.random, minDecay, maxDecay);
  return (film.imbdRating - RandomUnit(game.random, minThreshold, maxThreshold)) * popularityPerRating;
}

void drift(Game& game, List<Film>& films, std::size_t index) {
  const double before = films[index].currentPopularity;
  const double change = changeOfWeek(game, films[index]);
  const double now = change > 0 ? std::min(before + change, maxPopularity) : std::max(before + change, 0.0);
  films.set(index, &Film::currentPopularity, now);
  films.set(index, &Film::lastWeekPopularity, before);
}

}  // namespace

void driftPopularity(Game& game) {
  List<Film>& films = game.world.saveAllFilmList;
  for (std::size_t index = 0; index < films.size(); ++index) {
    if (drifts(game.world, films[index])) drift(game, films, index);
  }
}

}  // namespace tb
