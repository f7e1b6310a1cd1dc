#include "film/series_run.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "banks/draw.h"
#include "banks/film_banks.h"
#include "core/bands.h"
#include "core/find.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/fan_gain.h"
#include "film/film_record.h"
#include "film/score_roll.h"

namespace tb {

namespace {

// The bonus on ad revenue by the sum of the director's, the writer's and the performance rating.
struct CrewBand {
  std::int64_t from;
  std::int64_t upTo;
  double lowest;
  double raised;  // above the range of the score draw
};

constexpr std::array<CrewBand, 3> crewBands = {{
    {.from = -2, .upTo = 92, .lowest = 1, .raised = 0},
    {.from = 93, .upTo = 215, .lowest = 2, .raised = 2},
    {.from = 216, .upTo = 452, .lowest = 3, .raised = 3},
}};

// The share of viewers who return for the next episode, by the mean of both scores (0 to 10). A score in a
// gap between two bands keeps all viewers.
struct RetentionBand {
  double from;
  double upTo;
  double least;
  double most;
};

constexpr std::array<RetentionBand, 5> retentionBands = {{
    {.from = 0, .upTo = 3, .least = 0.5, .most = 0.8},
    {.from = 3.001, .upTo = 5, .least = 0.6, .most = 0.85},
    {.from = 5.001, .upTo = 7, .least = 0.7, .most = 0.9},
    {.from = 7.001, .upTo = 9, .least = 0.8, .most = 1.0},
    {.from = 9.001, .upTo = 250, .least = 0.8, .most = 1.1},
}};

double crewBonus(Game& game, const Audition& project) {
  const std::int64_t crew =
      project.directorRating + static_cast<std::int64_t>(project.performanceRating) + project.writerRating;
  const CrewBand* const band = bandOf(crewBands, crew);
  if (band == nullptr) return 0;
  return RandomUnit(game.random, band->lowest, topRating(project.directorRating) + band->raised);
}

double retention(Game& game, const Film& film) {
  const RetentionBand* const band = bandOf(retentionBands, meanScore(film));
  return band == nullptr ? 1.0 : RandomUnit(game.random, band->least, band->most);
}

// No episode has more: far beyond every series, and short of what a count can hold.
constexpr double mostViews = 1e12;

std::int64_t hoursOf(Game& game, double views) {
  return static_cast<std::int64_t>(views * RandomUnit(game.random, 0.75, 1.25));
}

void logPremiere(Game& game, const Audition& project, double views) {
  const std::string count = plainCount(game.locale, static_cast<std::int64_t>(views));
  logActivity(game.world,
              fill(drawFreshRow(game, bank::premiere), {{"title", project.title}, {"views", count}}));
}

void airEpisode(Game& game, const Film& film, std::int64_t weeksSinceRelease, Ratings& season) {
  const auto lastWeek = static_cast<std::size_t>(weeksSinceRelease - 1);
  if (lastWeek >= season.premiereViews.size()) return;
  const double talk = std::pow(1.25, film.currentPopularity / 100) - 1;
  const double views = std::min((talk + retention(game, film)) * season.premiereViews[lastWeek], mostViews);
  season.premiereViews.push_back(views);
  season.hoursWatched.push_back(hoursOf(game, views));
  season.weeksTracked.push_back(game.world.weekNumberForTracking);
}

}  // namespace

void premiereSeries(Game& game, const Audition& project) {
  const double talk = std::pow(3, project.hypeRating / 100);
  const double views = project.budget * RandomUnit(game.random, 0.05, 0.1) * talk;
  if (views <= 0) return;
  Ratings season{.filmId = project.filmId,
                 .parentSeriesId = project.parentSeriesFilmId,
                 .seasonNumber = project.seasonNumber,
                 .title = project.title,
                 .year = game.world.yearNumber,
                 .weekNumberForTracking = game.world.weekNumberForTracking,
                 .premiereViews = {views},
                 .hoursWatched = {hoursOf(game, views)},
                 .weeksTracked = {game.world.weekNumberForTracking}};
  season.adRates = project.hypeRating / 100 / 10 + 0.01 + crewBonus(game, project) / 100;
  game.world.saveAllRatings.push_back(std::move(season));
  logPremiere(game, project, views);
}

void advanceSeries(Game& game, const Audition& project, std::int64_t weeksSinceRelease) {
  WorldState& world = game.world;
  const auto index = find(world.saveAllFilmList, &Film::filmId, project.filmId);
  if (!index) return;
  const Film& film = world.saveAllFilmList[*index];
  gainFansFromTitle(game, project, qualityOf(film), 1);
  const auto season = find(world.saveAllRatings, &Ratings::filmId, project.filmId);
  if (season) airEpisode(game, film, weeksSinceRelease, world.saveAllRatings.edit(*season));
}

}  // namespace tb
