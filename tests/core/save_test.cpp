#include "core/save.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "tests/memory_port.h"
#include "tests/scripted_random.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Dictionary;
using plist::Value;
using test::MemoryPort;

// A launch of the game on the stored data.
struct Launch {
  explicit Launch(MemoryPort& port) : store(port) {}

  SaveStore store;
  test::ScriptedRandom random;
  Game game{.store = store, .random = random};
};

Child child(std::int64_t id) { return {.id = id, .name = "Child " + std::to_string(id)}; }

// A stored career of five pieces of children and five of fans.
void storeLists(MemoryPort& port) {
  Launch play(port);
  for (std::int64_t id = 0; id < 40; ++id) play.game.world.saveAllChildList.push_back(child(id));
  for (std::int64_t fans = 0; fans < 36; ++fans) play.game.world.trackFans.push_back(fans);
  play.game.world.weekNumber = 9;
  saveChanges(play.game);
  EXPECT_TRUE(play.store.commit());
}

// Loads every variable, including those that a launch does not read.
void loadThem(Game& game) {
  for (const Variable& variable : variables()) loadVariable(game, variable);
}

std::ptrdiff_t listPieces(const MemoryPort& port) {
  return std::ranges::count_if(port.pieces,
                               [](const auto& entry) { return entry.second.shape != Shape::plain; });
}

TEST(SaveAndLoad, WritesOnlyChangedPieces) {
  MemoryPort port;
  storeLists(port);
  EXPECT_EQ(listPieces(port), 10);
  Launch play(port);
  loadThem(play.game);
  EXPECT_FALSE(saveChanges(play.game));
  EXPECT_FALSE(play.store.hasUncommitted());

  WorldState& world = play.game.world;
  world.saveAllChildList.edit(39).followers = 5;
  world.trackFans.push_back(36);
  world.trackFans.pop_front();
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  EXPECT_EQ(port.lastCommit.size(), 3u);

  Launch next(port);
  loadThem(next.game);
  EXPECT_EQ(next.game.world.saveAllChildList, world.saveAllChildList);
  EXPECT_EQ(next.game.world.trackFans, world.trackFans);
  EXPECT_EQ(next.game.world.weekNumber, 9);
}

TEST(SaveAndLoad, SavesEmptiedLists) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  loadThem(play.game);
  WorldState& world = play.game.world;
  while (!world.saveAllChildList.empty()) world.saveAllChildList.pop_front();
  world.trackFans.clear();
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  EXPECT_EQ(SaveStore(port).value("saveAllChildList"), Value{Data{plist::write(Value{Array{}})}});
  EXPECT_EQ(SaveStore(port).value("trackFans"), Value{Array{}});

  Launch next(port);
  loadThem(next.game);
  next.game.world.saveAllChildList.push_front(child(7));
  next.game.world.trackFans.push_back(3);
  saveChanges(next.game);
  ASSERT_TRUE(next.store.commit());
  Launch last(port);
  loadThem(last.game);
  EXPECT_EQ(last.game.world.saveAllChildList, List<Child>{child(7)});
  EXPECT_EQ(last.game.world.trackFans, IntList{3});
}

TEST(SaveAndLoad, LoadsImportedListsAndSavesPieces) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  loadThem(play.game);
  const WorldState before = play.game.world;

  play.store.replace(play.store.dictionary());
  loadThem(play.game);
  ASSERT_EQ(play.game.world.saveAllChildList, before.saveAllChildList);
  ASSERT_EQ(play.game.world.trackFans, before.trackFans);

  play.game.world.saveAllChildList.edit(0).name = "Zoe";
  play.game.world.trackFans.push_back(99);
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  EXPECT_EQ(listPieces(port), 10);
  Launch next(port);
  loadThem(next.game);
  EXPECT_EQ(next.game.world.saveAllChildList, play.game.world.saveAllChildList);
  EXPECT_EQ(next.game.world.trackFans, play.game.world.trackFans);
}

// If a slot lacks a key, the next save must write the whole list.
TEST(SaveAndLoad, RewritesListsWithoutTheirKey) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  loadThem(play.game);
  play.store.replace({});
  loadThem(play.game);
  play.game.world.trackFans.push_back(36);
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  Launch next(port);
  loadThem(next.game);
  EXPECT_EQ(next.game.world.trackFans.size(), 37u);
}

TEST(SaveAndLoad, SetsDamagedListsAside) {
  MemoryPort port;
  storeLists(port);
  port.pieces.at({"saveAllChildList", 1}).bytes.resize(20);
  Launch play(port);
  testing::internal::CaptureStderr();
  loadThem(play.game);
  const std::string log = testing::internal::GetCapturedStderr();
  EXPECT_TRUE(log.starts_with("saveAllChildList: ")) << log;
  EXPECT_EQ(std::ranges::count(log, '\n'), 1);
  EXPECT_TRUE(play.game.world.saveAllChildList.empty());
  EXPECT_EQ(play.game.world.trackFans.size(), 36u);

  play.game.world.saveAllChildList.push_back(child(1));
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  EXPECT_EQ(port.keptAside.size(), 5u);
  Launch next(port);
  loadThem(next.game);
  EXPECT_EQ(next.game.world.saveAllChildList, List<Child>{child(1)});
}

TEST(SaveAndLoad, SetsValuesOfAnotherKindAside) {
  MemoryPort port;
  const std::pair<const char*, Value> odd[] = {
      {"weekNumber", Value{std::string("soon")}},
      {"myName", Value{std::int64_t{4}}},
      {"trackFans", Value{Array{Value{std::string("many")}}}},
      {"saveAllChildList", Value{Data{plist::write(Value{std::int64_t{4}})}}},
      {"activityTracker", Value{Dictionary{}}},
      {"saveAllEmailList", Value{Array{}}},
  };
  Launch before(port);
  for (const auto& [key, value] : odd) before.store.put(key, value);
  // Pieces of a key that is not a list in this version.
  before.store.putPieces("yearNumber", Shape::plainList, true, {{0, plist::write(Value{Array{}})}});
  ASSERT_TRUE(before.store.commit());

  Launch play(port);
  testing::internal::CaptureStderr();
  loadThem(play.game);
  testing::internal::GetCapturedStderr();
  const WorldState start;
  EXPECT_EQ(play.game.world.weekNumber, start.weekNumber);
  EXPECT_EQ(play.game.world.myName, start.myName);
  EXPECT_EQ(play.game.world.yearNumber, start.yearNumber);
  EXPECT_TRUE(play.game.world.trackFans.empty());
  play.game.world.weekNumber = 5;
  play.game.world.trackFans.push_back(7);
  saveChanges(play.game);
  ASSERT_TRUE(play.store.commit());
  EXPECT_EQ(port.keptAside.size(), 7u);
  EXPECT_EQ(SaveStore(port).value("weekNumber"), Value{std::int64_t{5}});
  EXPECT_EQ(SaveStore(port).value("trackFans"), Value{Array{Value{std::int64_t{7}}}});
}

}  // namespace
}  // namespace tb
