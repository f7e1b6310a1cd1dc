#include "film/popularity_drift.h"

#include <algorithm>

namespace tb {

namespace {

// A judgement is set against a rating of 1 to 10, and the bar can be out of reach.
constexpr double lowestBar = 1;
constexpr double highestBar = 13;
constexpr double pointsOfDifference = 0.5;  // of popularity, for each point of rating

constexpr double leastForgotten = 0.1;  // points of popularity in a week
constexpr double mostForgotten = 0.4;
constexpr double highestPopularity = 100;

bool drifts(const WorldState& world, const Film& film) {
  const bool in_the_talk = film.typeOfFilm == filmType::feature || film.typeOfFilm == filmType::series;
  return in_the_talk && film.weekReleased < world.weekNumberForTracking && film.currentPopularity > 0;
}

double changeOfWeek(Game& game, const Film& film) {
  const bool is_judged = RandomRange(game.random, 3) == 1;
  if (!is_judged) return -RandomUnit(game.random, leastForgotten, mostForgotten);
  return (film.imbdRating - RandomUnit(game.random, lowestBar, highestBar)) * pointsOfDifference;
}

void drift(Game& game, List<Film>& films, std::size_t index) {
  const double before = films[index].currentPopularity;
  const double change = changeOfWeek(game, films[index]);
  const double now =
      change > 0 ? std::min(before + change, highestPopularity) : std::max(before + change, 0.0);
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
