#pragma once

// A performer at the start of a story of films: booked for the lead of a film and of a series, both to be
// wrapped this week. The store outlives the game, so that a story can go on after a restart of the program.

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "core/save.h"
#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb::test {

inline Audition bookedLead(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title) {
  return {.filmId = filmId,
          .typeOfFilm = typeOfFilm,
          .isPrincipal = rolePart::principal,
          .title = title,
          .genres = {"Western"},
          .role = "Lead",
          .characterName = "June Abara",
          .numberOfEpisodesActed = typeOfFilm == filmType::series ? 4 : 0,
          .numberOfEpisodesTotal = 8,
          .isContinued = -1,
          .weekToWork = 1,
          .weekReleased = 3,
          .payment = 9'000,
          .royalty = 2,
          .budget = 40e6,
          .funnelStage = stage::booked,
          .hypeRating = 50,
          .directorRating = 80,
          .directorName = "Mina Falk"};
}

struct BookedPerformer {
  explicit BookedPerformer(std::uint64_t seed) : random(seed) {
    SaveStore store(port);
    Game game{.store = store, .random = random};
    game.world.myName = "Ada Quinn";
    game.world.enterPlayerDetails = 1;
    game.world.saveAllAuditionList.push_back(bookedLead(1, filmType::feature, "Salt Road"));
    game.world.saveAllAuditionList.push_back(bookedLead(2, filmType::series, "Harbor Lights"));
    save<&WorldState::myName, &WorldState::enterPlayerDetails, &WorldState::saveAllAuditionList>(game);
    EXPECT_TRUE(store.commit());
  }
  MemoryPort port;
  SeededRandom random;
};

// The game as the performer has it open.
struct Running {
  explicit Running(BookedPerformer& performer) : store(performer.port), app(store, performer.random) {}
  void endWeek() {
    player.press("Home");
    player.press("End Week");
    player.press("Close");
  }
  [[nodiscard]] const WorldState& world() const { return app.game().world; }
  [[nodiscard]] const Film& film(std::int64_t id) const {
    return *std::ranges::find(world().saveAllFilmList, id, &Film::filmId);
  }

  SaveStore store;
  App app;
  Player player{app};
};

}  // namespace tb::test
