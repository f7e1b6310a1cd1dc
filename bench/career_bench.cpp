// Plays fifty years of a star through the same screens as a player, and tells what a week costs as the career
// grows, and what it costs to open the game on the last day. Ends with 1 when a promise does not hold: a
// frame for a week at any time, and a third of a second to the first page.

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <print>
#include <string>
#include <vector>

#include "career/traits.h"
#include "core/save.h"
#include "screens/app.h"
#include "shells/sqlite/sqlite_port.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

constexpr int years = 50;
constexpr int weeksOfAYear = 52;
constexpr double frame = 16;      // ms
constexpr double patience = 300;  // ms
constexpr int submissionsAWeek = 3;

// Of the processor, so that what else the machine does is not counted.
template <class Work>
double milliseconds(Work work) {
  const std::clock_t start = std::clock();
  work();
  return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

// A member with every talent, so that there is a career to speak of.
void makeStar(const std::filesystem::path& folder, RandomSource& random) {
  const auto port = SqlitePort::open(folder);
  if (!port) std::exit(1);
  SaveStore store(**port);
  Game game{.store = store, .random = random};
  game.world.myName = "Ada Vale";
  game.world.enterPlayerDetails = 1;
  game.world.isSAG = 1;
  game.world.showreelScore = 95;
  for (const Trait& trait : traits) {
    game.world.*trait.points = 95;
  }
  saveChanges(game);
  if (!store.commit()) std::exit(1);
}

class Star {
 public:
  explicit Star(App& app) : app_(app), player_(app) {}

  // Sends the headshot out, and takes what job there is.
  void work() {
    press("The Backstage");
    press("Casting Network");
    for (int sent = 0; sent < submissionsAWeek && press("Submit"); ++sent) press("OK");
    press("Back");
    press("Back");
  }
  void endWeek() {
    press("End Week");
    press("Close");
  }

 private:
  // False when there is no such thing to press.
  bool press(const std::string& label) {
    for (const auto& usable : player_.usable()) {
      if (usable.label != label) continue;
      app_.press(usable.handle);
      return true;
    }
    return false;
  }

  App& app_;
  test::Player player_;
};

struct Year {
  double median = 0;
  double slowest = 0;
};

Year play(Star& star) {
  std::vector<double> weeks;
  for (int week = 0; week < weeksOfAYear; ++week) {
    star.work();
    weeks.push_back(milliseconds([&] { star.endWeek(); }));
  }
  std::ranges::sort(weeks);
  return {.median = weeks[weeks.size() / 2], .slowest = weeks.back()};
}

void print(int year, const Year& cost, const WorldState& world) {
  std::println("{:4} {:9} {:7} {:9} {:11.2f} {:11.2f}", year, world.saveAllAuditionList.size(),
               world.saveAllFilmList.size(), world.saveAllBoxOfficeList.size(), cost.median, cost.slowest);
}

double timeToFirstPage(const std::filesystem::path& folder, RandomSource& random) {
  return milliseconds([&] {
    const auto port = SqlitePort::open(folder);
    SaveStore store(**port);
    static_cast<void>(App(store, random).view());
  });
}

int bench(const std::filesystem::path& folder) {
  test::SeededRandom random(1);
  double slowest = 0;
  {
    makeStar(folder, random);
    const auto port = SqlitePort::open(folder);
    SaveStore store(**port);
    App app(store, random);
    Star star(app);
    std::println("year  projects   films   markets  week ms median  slowest");
    for (int year = 1; year <= years; ++year) {
      const Year cost = play(star);
      slowest = std::max(slowest, cost.slowest);
      if (year <= 2 || year % 10 == 0) print(year, cost, app.game().world);
    }
  }
  const double opening = timeToFirstPage(folder, random);
  std::println("to the first page after {} years: {:.0f} ms", years, opening);
  return slowest <= frame && opening <= patience ? 0 : 1;
}

}  // namespace
}  // namespace tb

int main() {
  const auto folder = std::filesystem::temp_directory_path() / "top-billing-career-bench";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  const int result = tb::bench(folder);
  std::filesystem::remove_all(folder);
  return result;
}
