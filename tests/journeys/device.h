#pragma once

// A device whose storage outlives the game, so that a test can relaunch it. Also makes leads that wrap in the
// first week.

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/memory_documents.h"
#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/scripted_random.h"
#include "tests/seeded_random.h"

namespace tb::test {

Audition bookedLead(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title);
// The performer's own production, without a role and with an equity of a tenth.
Audition ownProduction(std::int64_t filmId, const std::string& title);

// Writes the career that `prepare` sets up to the store.
void storeCareer(SaveStore& store, RandomSource& random, const std::function<void(WorldState&)>& prepare);

class Device {
 public:
  explicit Device(RandomSource& random) : random_(random) {}

  // Stores the career that `prepare` sets up, and launches the game.
  void begin(const std::function<void(WorldState&)>& prepare);
  // Ends the game, if it is running, and launches it on the stored data.
  void launch();

  [[nodiscard]] App& app() { return running_->app; }
  [[nodiscard]] Player& player() { return running_->player; }
  [[nodiscard]] const WorldState& world() const { return running_->app.game().world; }
  [[nodiscard]] const Audition& project(std::size_t index = 0) const {
    return world().saveAllAuditionList[index];
  }
  [[nodiscard]] const Film& film(std::int64_t id) const;

  // Ends a week and leaves its summary open. A story that breaks about the performer is answered.
  void endWeek();
  // Ends weeks and closes their summaries; returns the words of the last one.
  std::vector<std::string> playWeeks(int weeks = 1);

  // How often something was written.
  [[nodiscard]] int writes() const { return port.commits + documents.changes; }

  MemoryPort port;
  MemoryDocuments documents;

 private:
  struct Running {
    Running(Device& device)
        : store(device.port), app(store, device.random_, {}, stoppedClock, &device.documents) {}
    SaveStore store;
    App app;
    Player player{app};
  };

  RandomSource& random_;
  std::unique_ptr<Running> running_;
};

}  // namespace tb::test
