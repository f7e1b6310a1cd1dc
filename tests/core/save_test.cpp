#include "core/save.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>

#include "tests/core/launch.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Dictionary;
using plist::Value;
using test::Launch;
using test::MemoryPort;

Child child(std::int64_t id) { return {.id = id, .name = "Child " + std::to_string(id)}; }

// A stored career of five pieces of children and one of fans.
void storeLists(MemoryPort& port) {
  Launch play(port);
  for (std::int64_t id = 0; id < 40; ++id) play.world.saveAllChildList.push_back(child(id));
  for (std::int64_t fans = 0; fans < 36; ++fans) play.world.trackFans.push_back(fans);
  play.world.weekNumber = 9;
  play.save();
}

std::ptrdiff_t listPieces(const MemoryPort& port) {
  return std::ranges::count_if(port.pieces,
                               [](const auto& entry) { return entry.second.shape != Shape::plain; });
}

TEST(SaveAndLoad, WritesOnlyChangedPieces) {
  MemoryPort port;
  storeLists(port);
  EXPECT_EQ(listPieces(port), 6);
  Launch play(port);
  EXPECT_FALSE(saveChanges(play.game));
  EXPECT_FALSE(play.store.hasUncommitted());
  EXPECT_TRUE(play.store.contains("yearNumber")) << "start values are saved too";

  play.world.saveAllChildList.edit(39).followers = 5;
  play.world.trackFans.push_back(36);
  play.world.trackFans.pop_front();
  play.save();
  EXPECT_EQ(port.lastCommit.size(), 2u);

  Launch next(port);
  EXPECT_EQ(next.world.saveAllChildList, play.world.saveAllChildList);
  EXPECT_EQ(next.world.trackFans, play.world.trackFans);
  EXPECT_EQ(next.world.weekNumber, 9);
}

TEST(SaveAndLoad, SavesEmptiedLists) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  while (!play.world.saveAllChildList.empty()) play.world.saveAllChildList.pop_front();
  play.world.trackFans.clear();
  play.save();
  EXPECT_EQ(SaveStore(port).value("saveAllChildList"), Value{Data{plist::write(Value{Array{}})}});
  EXPECT_EQ(SaveStore(port).value("trackFans"), Value{Array{}});

  Launch next(port);
  next.world.saveAllChildList.push_front(child(7));
  next.world.trackFans.push_back(3);
  next.save();
  Launch last(port);
  EXPECT_EQ(last.world.saveAllChildList, List<Child>{child(7)});
  EXPECT_EQ(last.world.trackFans, IntList{3});
}

TEST(SaveAndLoad, LoadsImportedListsAndSavesPieces) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  const WorldState before = play.world;

  play.store.replace(play.store.dictionary());
  play.load();
  ASSERT_EQ(play.world.saveAllChildList, before.saveAllChildList);
  ASSERT_EQ(play.world.trackFans, before.trackFans);

  play.world.saveAllChildList.edit(0).name = "Zoe";
  play.world.trackFans.push_back(99);
  play.save();
  EXPECT_EQ(listPieces(port), 6);
  Launch next(port);
  EXPECT_EQ(next.world.saveAllChildList, play.world.saveAllChildList);
  EXPECT_EQ(next.world.trackFans, play.world.trackFans);
}

// If a slot lacks a key, the next save must write the whole list.
TEST(SaveAndLoad, RewritesListsWithoutTheirKey) {
  MemoryPort port;
  storeLists(port);
  Launch play(port);
  play.store.replace({});
  play.load();
  play.world.trackFans.push_back(36);
  play.save();
  Launch next(port);
  EXPECT_EQ(next.world.trackFans.size(), 37u);
}

// 40 children are five pieces.
TEST(SaveAndLoad, KeepsSoundPiecesOfDamagedLists) {
  MemoryPort port;
  storeLists(port);
  port.pieces.at({"saveAllChildList", 1}).bytes.resize(20);
  Launch play(port);
  EXPECT_TRUE(play.log.starts_with("saveAllChildList: ")) << play.log;
  EXPECT_EQ(std::ranges::count(play.log, '\n'), 1);
  EXPECT_EQ(play.damage, "Could not be read: up to 8 entries of saveAllChildList.");
  ASSERT_EQ(play.world.saveAllChildList.size(), 32u);
  EXPECT_EQ(play.world.saveAllChildList[8], child(16));
  EXPECT_EQ(play.world.trackFans.size(), 36u);

  play.save();
  EXPECT_EQ(port.keptAside.size(), 1u);
  Launch next(port);
  EXPECT_EQ(next.damage, "");
  EXPECT_EQ(next.world.saveAllChildList, play.world.saveAllChildList);
}

// A record without a readable value is left out; the others of its piece stay.
TEST(SaveAndLoad, KeepsSoundRecordsOfDamagedPieces) {
  MemoryPort port;
  storeLists(port);
  Bytes& bytes = port.pieces.at({"saveAllChildList", 2}).bytes;
  Value piece = *plist::read(bytes);
  auto& records = std::get<Array>(piece.held);
  std::get<Dictionary>(records[3].held).front().second = Value{"not a number"};
  bytes = plist::write(piece);
  Launch play(port);
  EXPECT_EQ(play.damage, "Could not be read: 1 entry of saveAllChildList.");
  EXPECT_EQ(play.world.saveAllChildList.size(), 39u);
  EXPECT_EQ(play.world.saveAllChildList[19], child(20));
  play.save();
  ASSERT_EQ(port.keptAside.size(), 1u);
  EXPECT_EQ(port.keptAside.front().bytes, plist::write(piece));
  EXPECT_EQ(Launch(port).world.saveAllChildList, play.world.saveAllChildList);
}

// A column has a value for each film of a damaged piece, too.
TEST(SaveAndLoad, FindsTheColumnsAfterADamagedPiece) {
  MemoryPort port;
  {
    Launch play(port);
    for (std::int64_t id = 0; id < 24; ++id) {
      play.world.saveAllFilmList.push_back({.filmId = id, .currentPopularity = 1});
    }
    play.save();
    for (std::size_t index = 0; index < 24; ++index) {
      play.world.saveAllFilmList.set(index, &Film::currentPopularity, static_cast<double>(100 + index));
    }
    play.save();
  }
  port.pieces.at({"saveAllFilmList", 1}).bytes.resize(20);
  Launch play(port);
  EXPECT_EQ(play.damage, "Could not be read: up to 8 films.");
  ASSERT_EQ(play.world.saveAllFilmList.size(), 16u);
  EXPECT_EQ(play.world.saveAllFilmList[7].currentPopularity, 107);
  EXPECT_EQ(play.world.saveAllFilmList[8].currentPopularity, 116);
  play.save();
  EXPECT_EQ(Launch(port).damage, "");
}

TEST(SaveAndLoad, BringsImpossibleValuesToTheNearestPossibleOne) {
  MemoryPort port;
  Launch before(port);
  before.world.weekNumber = -7;
  before.world.totalCashAvailable = std::numeric_limits<double>::quiet_NaN();
  before.world.yearNumber = std::numeric_limits<std::int64_t>::max();
  before.world.newScenesProduced = {50, 60, 70};
  before.world.newSceneDescriptions = {"A fight", "A kiss"};
  before.world.saveAllFilmList = {{.filmId = 1, .typeOfFilm = 77}, {.filmId = 2, .imbdRating = 1e300}};
  before.world.saveAllBoxOfficeList = {
      {.filmId = 2, .boxOfficeWeeklyEarnings = {1, 2, 3}, .weeksTracked = {1, 2}}};
  before.save();

  Launch play(port);
  EXPECT_EQ(play.world.weekNumber, 1);
  EXPECT_EQ(play.world.totalCashAvailable, 0);
  EXPECT_EQ(play.world.yearNumber, 100'000);
  EXPECT_EQ(play.world.newScenesProduced, (IntList{50, 60}));
  ASSERT_EQ(play.world.saveAllFilmList.size(), 1u);
  EXPECT_EQ(play.world.saveAllFilmList[0].imbdRating, 10);
  EXPECT_EQ(play.world.saveAllBoxOfficeList[0].boxOfficeWeeklyEarnings.size(), 2u);
  EXPECT_EQ(play.damage,
            "Could not be read: 1 entry of newScenesProduced.\n"
            "Left out, of an unknown kind or there twice: 1 film.\n"
            "Changed to the nearest possible value: weekNumber, yearNumber, 1 in saveAllFilmList, "
            "1 in saveAllBoxOfficeList, totalCashAvailable.");
  play.save();
  EXPECT_EQ(Launch(port).damage, "");
}

TEST(SaveAndLoad, SetsValuesOfAnotherKindAside) {
  MemoryPort port;
  const std::pair<const char*, Value> odd[] = {
      {"weekNumber", Value{std::string("soon")}},
      {"myName", Value{std::int64_t{4}}},
      {"isMale", Value{std::string("yes")}},
      {"totalCashAvailable", Value{std::string("rich")}},
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
  const WorldState start;
  EXPECT_EQ(play.world.weekNumber, start.weekNumber);
  EXPECT_EQ(play.world.myName, start.myName);
  EXPECT_EQ(play.world.totalCashAvailable, start.totalCashAvailable);
  EXPECT_EQ(play.world.yearNumber, start.yearNumber);
  EXPECT_TRUE(play.world.trackFans.empty());
  play.world.weekNumber = 5;
  play.world.trackFans.push_back(7);
  play.save();
  EXPECT_EQ(port.keptAside.size(), 9u);
  EXPECT_EQ(SaveStore(port).value("weekNumber"), Value{std::int64_t{5}});
  EXPECT_EQ(SaveStore(port).value("trackFans"), Value{Array{Value{std::int64_t{7}}}});
}

}  // namespace
}  // namespace tb
