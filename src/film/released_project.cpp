#include "film/released_project.h"

#include <algorithm>

#include "core/find.h"
#include "film/box_office.h"
#include "film/fan_gain.h"
#include "film/film_record.h"
#include "film/score_roll.h"
#include "film/series_run.h"

namespace tb {

namespace {

constexpr std::int64_t weeksInTheaters = 7;  // after the opening

// At this quality the popularity after release equals the hype.
constexpr double qualityAsExpected = 75;

// In weeks after the release; 0 for a type of title without a run.
std::int64_t lastWeekOf(const Audition& project) {
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

void release(Game& game, const Audition& project, Film& film) {
  publishScores(game, project, film);
  const double quality = qualityOf(film);
  gainFansFromTitle(game, project, quality, 1);
  const double factor = quality / qualityAsExpected;
  film.lastWeekPopularity = film.currentPopularity;
  film.currentPopularity *= factor;

  if (project.typeOfFilm == filmType::series) premiereSeries(game, project);
  if (project.typeOfFilm == filmType::feature) {
    openBoxOffice(game, project);
    List<Audition>& projects = game.world.saveAllAuditionList;
    projects.edit(*find(projects, &Audition::filmId, project.filmId)).hypeRating *= factor;
  }
}

}  // namespace

void advanceReleasedProject(Game& game, const Audition& project) {
  const std::int64_t weeks = game.world.weekNumberForTracking - project.weekReleased;
  if (weeks < 0 || weeks > lastWeekOf(project)) return;
  const auto film = find(game.world.saveAllFilmList, &Film::filmId, project.filmId);
  if (!film) return;

  if (weeks == 0) return release(game, project, game.world.saveAllFilmList.edit(*film));
  if (project.typeOfFilm == filmType::feature) advanceBoxOffice(game, project, weeks);
  if (project.typeOfFilm == filmType::series) advanceSeries(game, project, weeks);
}

}  // namespace tb
