#include "career/project_start.h"

#include <algorithm>

#include "banks/names.h"
#include "career/colleagues.h"
#include "career/preparation.h"
#include "career/schedule.h"
#include "core/text.h"

namespace tb {

namespace {

constexpr std::int64_t minSeasonEpisodes = 8;  // episodes
constexpr std::int64_t maxSeasonEpisodes = 12;

}  // namespace

Audition projectFrom(const CastingListing& listing) {
  const Movie& movie = *listing.movie;
  return {.filmId = listing.filmId,
          .imageString = movie.imageString,
          .typeOfFilm = movie.type,
          .isPrincipal = listing.isPrincipal,
          .isUnion = listing.isUnion,
          .title = movie.title,
          .description = movie.shortSummary,
          .roleDescription = fill(movie.longSummaryTemplate, {{"name", listing.characterName}}),
          .genres = movie.genre,
          .role = listing.role,
          .characterName = listing.characterName,
          .numberOfEpisodesActed = listing.numberOfEpisodesActed,
          .weekAudition = listing.weekAudition,
          .weekToWork = listing.weekToWork,
          .payment = listing.payment,
          .buyout = listing.buyout,
          .residual = listing.residual,
          .budget = listing.budget,
          .directorRating = listing.directorRating,
          .directorName = listing.directorName};
}

void startProject(Game& game, Audition& project) {
  const WorldState& world = game.world;
  project.rehearsalRating = drawRehearsalRating(game);
  project.performanceRating = drawPerformanceRating(game, project.rehearsalRating);
  project.weekReleased = drawReleaseWeek(game, project.weekToWork);
  project.auditionDifficulty = auditionDifficulty(project, world.isSAG == 1);
  project.numberOfEpisodesTotal = std::max(project.numberOfEpisodesActed,
                                           RandomBetween(game.random, minSeasonEpisodes, maxSeasonEpisodes));
  if (project.typeOfFilm == filmType::series) {
    project.isContinued = 0;
    project.seasonNumber = 1;
  }
  project.hypeRating = static_cast<double>(drawHypeRating(game, project.directorRating));
  project.writerName = inventedName(game.random);
  project.writerRating = drawWriterRating(game);
  project.workYear = yearOfWork(world, project.weekToWork);
  project.submittedYear = world.yearNumber;
  project.weekSubmitted = world.weekNumberForTracking;
}

}  // namespace tb
