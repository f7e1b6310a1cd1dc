#pragma once

// A project that is wrapped and comes out in week 20, with its film. The scripted draws of a release are
// those of a director of some standing.

#include "film/film_record.h"
#include "film/released_project.h"
#include "tests/scratch_game.h"

namespace tb::test {

inline constexpr std::int64_t releaseWeek = 20;

// Draws are named for what they give, share 0 to 1 of their range.
struct ReleasedGame : ScratchGame {
  explicit ReleasedGame(Audition work) {
    game.world.myName = "Ada Quinn";
    game.world.agentFanBonus = 1;
    game.world.yearNumber = 2030;
    game.world.weekNumberForTracking = releaseWeek;
    work.funnelStage = stage::wrapped;
    work.weekReleased = releaseWeek;
    Film film{.filmId = work.filmId,
              .typeOfFilm = work.typeOfFilm,
              .isPrincipal = work.isPrincipal,
              .title = work.title,
              .yearReleased = 2029,
              .weekReleased = work.weekReleased,
              .budget = work.budget,
              .currentPopularity = work.hypeRating,
              .lastWeekPopularity = work.hypeRating,
              .royaltyRate = work.royalty,
              .equityPercentage = work.equityPercentage};
    game.world.saveAllAuditionList.push_back(std::move(work));
    game.world.saveAllFilmList.push_front(std::move(film));
  }

  void advance(std::int64_t weeksSinceRelease) {
    game.world.weekNumberForTracking = releaseWeek + weeksSinceRelease;
    advanceReleasedProject(game, 0);
    EXPECT_EQ(random.left(), 0U);
  }

  Audition& project() { return game.world.saveAllAuditionList.edit(0); }
  Film& film() { return game.world.saveAllFilmList.edit(0); }
  WorldState& world() { return game.world; }
};

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

}  // namespace tb::test
