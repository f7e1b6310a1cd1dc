#pragma once

// One device: its storage outlives the game that runs on it, so that a story can go on after a restart of the
// program. And what stories of films begin with: leads that wrap in the first week.

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/scripted_random.h"
#include "tests/seeded_random.h"

namespace tb::test {

Audition bookedLead(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title);
// A film of the performer's own, who does not act in it and holds a tenth.
Audition ownProduction(std::int64_t filmId, const std::string& title);

class Device {
 public:
  explicit Device(RandomSource& random) : random_(random) {}

  // Stores a career as `prepare` makes it, and opens the game on it.
  void begin(const std::function<void(WorldState&)>& prepare);
  // Ends the game, if it runs, and opens it on what is stored.
  void launch();

  [[nodiscard]] Player& player() { return running_->player; }
  [[nodiscard]] App& app() { return running_->app; }
  [[nodiscard]] const WorldState& world() const { return running_->app.game().world; }
  [[nodiscard]] const Audition& project(std::size_t index = 0) const {
    return world().saveAllAuditionList[index];
  }
  [[nodiscard]] const Film& film(std::int64_t id) const;

  // Ends a week and leaves its summary open.
  void endWeek();
  // Ends weeks and closes their summaries; says what the last one told.
  std::vector<std::string> liveWeeks(int weeks = 1);

  MemoryPort port;

 private:
  struct Running {
    Running(StorePort& port, RandomSource& random) : store(port), app(store, random) {}
    SaveStore store;
    App app;
    Player player{app};
  };

  RandomSource& random_;
  std::unique_ptr<Running> running_;
};

}  // namespace tb::test
