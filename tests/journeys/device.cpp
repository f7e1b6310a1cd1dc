#include "tests/journeys/device.h"

#include <algorithm>

#include "core/save.h"

namespace tb::test {

Audition bookedLead(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title) {
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
          .funnelStage = funnel::booked,
          .hypeRating = 50,
          .directorRating = 80,
          .directorName = "Mina Falk"};
}

Audition ownProduction(std::int64_t filmId, const std::string& title) {
  Audition project = bookedLead(filmId, filmType::feature, title);
  project.isPrincipal = rolePart::ownProduction;
  project.didAct = 0;
  project.payment = 2'000;
  project.royalty = 0;
  project.equityPercentage = 10;
  return project;
}

void storeCareer(SaveStore& store, RandomSource& random, const std::function<void(WorldState&)>& prepare) {
  Game game{.store = store, .random = random};
  game.world.myName = "Ada Quinn";
  game.world.enterPlayerDetails = 1;
  prepare(game.world);
  saveChanges(game);
  EXPECT_TRUE(store.commit());
}

void Device::begin(const std::function<void(WorldState&)>& prepare) {
  SaveStore store(port);
  storeCareer(store, random_, prepare);
  launch();
}

void Device::launch() {
  running_.reset();
  running_ = std::make_unique<Running>(*this);
}

const Film& Device::film(std::int64_t id) const {
  return *std::ranges::find(world().saveAllFilmList, id, &Film::filmId);
}

void Device::endWeek() {
  player().follow({"Home", "End Week"});
  if (player().sees("Not Today")) player().press("Not Today");  // to recommend the game, once in a career
  player().answerStory();
  EXPECT_EQ(player().title(), "REVIEW");
}

std::vector<std::string> Device::playWeeks(int weeks) {
  std::vector<std::string> told;
  for (int week = 0; week < weeks; ++week) {
    endWeek();
    told = player().words();
    player().press("Close");
  }
  return told;
}

}  // namespace tb::test
