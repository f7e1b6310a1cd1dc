#pragma once

// A wrapped project that is released in week 20, with its film.

#include <utility>

#include "core/world_state.h"

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

// Sets the week of the release and adds the project and its film.
inline void addReleased(WorldState& world, Audition work) {
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

}  // namespace tb::test
