#pragma once

// A project that is wrapped and comes out in week 20, with its film.

#include "film/film_record.h"
#include "film/released_project.h"
#include "tests/scratch_game.h"

namespace tb::test {

inline constexpr std::int64_t releaseWeek = 20;

inline Audition projectOf(std::int64_t typeOfFilm) {
  return {.filmId = 7,
          .typeOfFilm = typeOfFilm,
          .title = "Salt Road",
          .genres = {"Western"},
          .budget = 1'000'000,
          .hypeRating = 0,
          .directorRating = 50,
          .directorName = "Mina Falk"};
}

struct ReleasedGame : ScratchGame {
  explicit ReleasedGame(std::int64_t typeOfFilm) : ReleasedGame(projectOf(typeOfFilm)) {}
  explicit ReleasedGame(Audition work) {
    world.myName = "Ada Quinn";
    world.agentFanBonus = 1;
    world.yearNumber = 2030;
    world.weekNumberForTracking = releaseWeek;
    work.funnelStage = funnel::wrapped;
    work.weekReleased = releaseWeek;
    world.saveAllFilmList = {{.filmId = work.filmId,
                              .typeOfFilm = work.typeOfFilm,
                              .isPrincipal = work.isPrincipal,
                              .title = work.title,
                              .yearReleased = 2029,
                              .weekReleased = work.weekReleased,
                              .budget = work.budget,
                              .currentPopularity = work.hypeRating,
                              .lastWeekPopularity = work.hypeRating,
                              .royaltyRate = work.royalty,
                              .equityPercentage = work.equityPercentage}};
    world.saveAllAuditionList.push_back(std::move(work));
  }

  void advance(std::int64_t weeksSinceRelease) {
    world.weekNumberForTracking = releaseWeek + weeksSinceRelease;
    advanceReleasedProject(game, 0);
  }

  Audition& project() { return world.saveAllAuditionList.edit(0); }
  Film& film() { return world.saveAllFilmList.edit(0); }
};

}  // namespace tb::test
