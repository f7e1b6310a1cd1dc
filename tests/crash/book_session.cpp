#include <cstddef>
#include <string>

#include "core/load_world.h"
#include "core/save.h"
#include "tests/crash/session.h"
#include "tests/seeded_random.h"

namespace tb::crash {

namespace {

class BookSession : public Session {
 public:
  explicit BookSession(StorePort& port) : store_(port) {
    loadWorld(game_);
    commit();
  }

  void act(std::uint64_t number) override {
    random_.seed(number);
    if (oneIn(5)) store_.weeks().beginWeek();
    if (oneIn(10)) goToAnotherWeek();
    writeScalars(static_cast<Int>(number));
    writeLists(static_cast<Int>(number));
    if (oneIn(50)) {
      store_.replace(store_.dictionary());
      loadWorld(game_);
    }
    saveChanges(game_);
    commit();
  }

 private:
  void goToAnotherWeek() {
    const bool went = oneIn(2) ? store_.weeks().goBack() : store_.weeks().goForward();
    if (went) loadWorld(game_);
  }

  void writeScalars(Int number) {
    WorldState& world = game_.world;
    world.weekNumber = number;
    world.totalFans = number;
    world.totalCashAvailable = static_cast<Real>(number);
    world.myName = "Action " + std::to_string(number);
  }

  void writeLists(Int number) {
    WorldState& world = game_.world;
    world.trackFans.push_back(number);
    if (world.trackFans.size() > 100) world.trackFans.pop_front();
    world.activityTracker.push_front("Action " + std::to_string(number));
    if (oneIn(30)) world.activityTracker.clear();

    List<Film>& films = world.saveAllFilmList;
    films.push_back({.filmId = number, .title = "Film " + std::to_string(number)});
    if (films.size() > 300) films.erase_if([&](const Film&) { return oneIn(2); });
    films.edit(index(films.size())).title = "Recut " + std::to_string(number);
    if (oneIn(3)) films.erase_at(index(films.size()));
  }

  void commit() {
    // A failed commit shows up as an outdated key.
    (void)store_.commit();
  }

  bool oneIn(Int n) { return RandomRange(random_, n) == 0; }
  std::size_t index(std::size_t size) {
    return static_cast<std::size_t>(RandomRange(random_, static_cast<Int>(size)));
  }

  SaveStore store_;
  test::SeededRandom random_{0};
  Game game_{.store = store_, .random = random_};
};

}  // namespace

std::unique_ptr<Session> playBookkeeping(StorePort& port, Documents&) {
  return std::make_unique<BookSession>(port);
}

}  // namespace tb::crash
