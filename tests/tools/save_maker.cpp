// Plays the careers of tests/saves with the rules of today:
//
//   save_maker FOLDER beginner|working|star
//
// writes FOLDER/career.sqlite and FOLDER/career.plist.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <print>
#include <string_view>

#include "career/traits.h"
#include "core/save.h"
#include "core/save_file.h"
#include "shells/sqlite/sqlite_port.h"
#include "tests/seeded_random.h"
#include "tests/submitting_player.h"

namespace tb {
namespace {

struct Plan {
  std::string_view name;
  std::string_view player;
  int purchases;  // of each trait, at its lawful price
  bool isGuildMember;
  int weeks;
  int weeksPerRole;
};

constexpr Plan plans[] = {
    {"beginner", "Nina Okafor", 0, false, 9, 1},
    {"working", "Tom Hale", 24, true, 5 * 52 - 20, 1},
    {"star", "Ada Vale", 80, true, 30 * 52 - 20, 3},
};

void begin(const Plan& plan, SqlitePort& port, RandomSource& random) {
  SaveStore store(port);
  Game game{.store = store, .random = random};
  game.world.myName = plan.player;
  game.world.enterPlayerDetails = 1;
  game.world.isSAG = plan.isGuildMember ? 1 : 0;
  for (int purchase = 0; purchase < plan.purchases; ++purchase) {
    for (int trait = 1; trait <= std::ssize(traits); ++trait) {
      game.world.totalEnergyAvailable = 1'000;
      buyTrait(game, trait);
    }
  }
  game.world.totalEnergyAvailable = game.world.totalEnergyMax;
  saveChanges(game);
  if (!store.commit()) std::exit(1);
}

void play(const Plan& plan, SaveStore& store, RandomSource& random) {
  App app(store, random);
  test::SubmittingPlayer player(app);
  for (int week = 0; week < plan.weeks; ++week) {
    if (week % plan.weeksPerRole == 0) player.submit(1);
    player.endWeek();
  }
  const WorldState& world = app.game().world;
  std::println("{}: year {}, {} projects, {} films, {} lines of the log", plan.name, world.yearNumber,
               world.saveAllAuditionList.size(), world.saveAllFilmList.size(), world.activityTracker.size());
}

bool make(const Plan& plan, const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  test::SeededRandom random(3);
  {
    const auto port = SqlitePort::open(folder);
    if (!port) return false;
    begin(plan, **port, random);
  }
  const auto port = SqlitePort::open(folder);
  if (!port) return false;
  SaveStore store(**port);
  play(plan, store, random);
  const Bytes save = exportedSave(store);
  std::ofstream file(folder / "career.plist", std::ios::binary);
  file.write(reinterpret_cast<const char*>(save.data()), static_cast<std::streamsize>(save.size()));
  return file.good();
}

}  // namespace
}  // namespace tb

int main(int count, char** words) {
  for (const tb::Plan& plan : tb::plans) {
    if (count == 3 && plan.name == words[2]) return tb::make(plan, words[1]) ? 0 : 1;
  }
  std::println(stderr, "Usage: save_maker FOLDER beginner|working|star");
  return 2;
}
