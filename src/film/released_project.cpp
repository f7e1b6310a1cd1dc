#include "film/released_project.h"

#include <algorithm>

#include "film/box_office.h"
#include "film/fan_gain.h"
#include "film/film_record.h"
#include "film/score_roll.h"
#include "film/series_run.h"

namespace tb {

namespace {

constexpr std::int64_t weeksInTheaters = 7;  // after the opening

// A title of this quality keeps exactly the popularity that its hype promised.
constexpr double qualityAsExpected = 75;

// In weeks after the release; 0 for what is released and has no run.
std::int64_t lastWeekOfRun(const Audition& project) {
  if (project.typeOfFilm == filmType::feature) return weeksInTheaters;
  if (project.typeOfFilm == filmType::series)
    return std::max<std::int64_t>(project.numberOfEpisodesTotal - 1, 0);
  return 0;
}

void publishScores(Game& game, const Audition& project, Film& film) {
  Scores scores = rollScores(game, project);
  film.imbdRating = scores.imbdRating;
  film.imbdMetascore = scores.imbdMetascore;
  film.numImbdRatings = scores.numImbdRatings;
  film.numMetascoreRatings = scores.numMetascoreRatings;
  film.featuredReviews = {std::move(scores.featuredReview)};
}

void release(Game& game, std::size_t auditionIndex, Film& film) {
  const Audition& project = game.world.saveAllAuditionList[auditionIndex];
  publishScores(game, project, film);
  const double quality = qualityOf(film);
  gainFansOfTitle(game, project, quality, 1);
  const double factor = quality / qualityAsExpected;
  film.lastWeekPopularity = film.currentPopularity;
  film.currentPopularity *= factor;

  if (project.typeOfFilm == filmType::series) premiereSeries(game, project);
  if (project.typeOfFilm == filmType::feature) {
    openBoxOffice(game, project);
    game.world.saveAllAuditionList.edit(auditionIndex).hypeRating *= factor;
  }
}

}  // namespace

void advanceReleasedProject(Game& game, std::size_t auditionIndex) {
  const Audition& project = game.world.saveAllAuditionList[auditionIndex];
  const std::int64_t weeks = game.world.weekNumberForTracking - project.weekReleased;
  if (weeks < 0 || weeks > lastWeekOfRun(project)) return;
  const std::size_t film = filmIndex(game.world, project.filmId);
  if (film == game.world.saveAllFilmList.size()) return;

  if (weeks == 0) return release(game, auditionIndex, game.world.saveAllFilmList.edit(film));
  if (project.typeOfFilm == filmType::feature) advanceBoxOffice(game, project, weeks);
  if (project.typeOfFilm == filmType::series) advanceSeries(game, project, weeks);
}

}  // namespace tb
