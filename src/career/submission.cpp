#include "career/submission.h"

#include <algorithm>

#include "banks/banks.h"
#include "banks/names.h"
#include "career/colleagues.h"
#include "career/preparation.h"
#include "career/schedule.h"
#include "core/audition_list.h"
#include "core/log.h"
#include "core/save.h"

namespace tb {

namespace {

constexpr std::int64_t shortestSeason = 8;  // episodes
constexpr std::int64_t longestSeason = 12;

// A member works for the guild's productions only, everybody else for the others only.
Refusal guildObjects(const WorldState& world, const CastingListing& listing) {
  if (listing.isUnion == world.isSAG) return {};
  if (listing.isUnion == 0) {
    return Notice{
        .title = "🎞 Actor's Guild 🎞",
        .message = "\nAs a member of the Actor's Guild, you are not permitted to work non-union roles."};
  }
  return Notice{.title = "🎞 Actor's Guild 🎞",
                .message =
                    "\nBecome a member of the Actor's Guild to gain access to better pay, residuals, "
                    "royalties and feature films. It takes in performers with two booked principal roles."};
}

// What the listing says.
Audition recordOf(const CastingListing& listing) {
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

// What the submission adds to it.
Audition submittedRecord(Game& game, const CastingListing& listing) {
  const WorldState& world = game.world;
  Audition project = recordOf(listing);
  project.rehearsalRating = drawRehearsalRating(game);
  project.performanceRating = drawPerformanceRating(game, project.rehearsalRating);
  project.weekReleased = drawReleaseWeek(game, project.weekToWork);
  project.auditionDifficulty = auditionDifficulty(project, world.isSAG == 1);
  project.numberOfEpisodesTotal =
      std::max(project.numberOfEpisodesActed, RandomBetween(game.random, shortestSeason, longestSeason));
  if (project.typeOfFilm == filmType::series) {
    project.isContinued = 0;
    project.seasonNumber = 1;
  }
  project.hypeRating = static_cast<double>(drawHypeRating(game, project.directorRating));
  project.writerName = inventedName(game.random);
  project.writerRating = drawWriterRating(game);
  project.workYear = yearOfWork(world, project.weekToWork);
  project.source = "The Backstage";
  project.submittedYear = world.yearNumber;
  project.weekSubmitted = world.weekNumberForTracking;
  return project;
}

}  // namespace

Refusal submitToCastingListing(Game& game, const CastingListing& listing) {
  WorldState& world = game.world;
  if (auditionIndex(world, listing.filmId)) {
    return Notice{.title = "🎭 SUBMITTED! 🎭",
                  .message = "\nYou already submitted for this role. Choose another one."};
  }
  if (Refusal refusal = guildObjects(world, listing)) return refusal;
  if (world.totalEnergyAvailable < submissionEnergy) {
    return Notice{.title = "⚡️ Not Enough Energy! ⚡️",
                  .message = "\nYou don't have the energy to submit for this role."};
  }

  world.totalEnergyAvailable -= submissionEnergy;
  world.filmId = std::max(world.filmId, listing.filmId);  // listings are answered in any order; it only rises
  world.saveAllAuditionList.push_back(submittedRecord(game, listing));
  logActivity(world, fill(drawRow(game.random, Bank::submission), {{"title", listing.movie->title}}));
  save<&WorldState::totalEnergyAvailable, &WorldState::filmId, &WorldState::saveAllAuditionList,
       &WorldState::activityTracker>(game);
  return {};
}

}  // namespace tb
