#include "core/save_store.h"

#include <gtest/gtest.h>

#include "tests/memory_port.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Dictionary;
using plist::Value;
using test::MemoryPort;

Value integerValue(std::int64_t number) { return Value{number}; }

Bytes piece(std::vector<std::int64_t> numbers) {
  Array array;
  for (const std::int64_t number : numbers) array.push_back(integerValue(number));
  return plist::write(Value{std::move(array)});
}

std::vector<SaveStore::PieceWrite> pieces(
    std::vector<std::pair<std::int64_t, std::vector<std::int64_t>>> all) {
  std::vector<SaveStore::PieceWrite> writes;
  for (auto& [number, elements] : all) writes.push_back({number, piece(std::move(elements))});
  return writes;
}

Bytes rubbish() { return Bytes(7, std::byte{0x42}); }

const Bytes& storedBytes(MemoryPort& port, const std::string& key, std::int64_t number = 0) {
  return port.pieces.at({key, number}).bytes;
}

TEST(SaveStore, CommitsWholeActions) {
  MemoryPort port;
  SaveStore store(port);
  EXPECT_FALSE(store.hasUncommitted());
  store.put("weekNumber", integerValue(1));
  store.put("myName", Value{std::string("Ada")});
  store.put("weekNumber", integerValue(2));
  EXPECT_TRUE(store.hasUncommitted());
  EXPECT_TRUE(port.pieces.empty());
  EXPECT_EQ(store.value("weekNumber"), integerValue(2));

  ASSERT_TRUE(store.commit());
  EXPECT_FALSE(store.hasUncommitted());
  EXPECT_EQ(port.commits, 1);
  EXPECT_EQ(port.lastCommit.size(), 2u);  // only the last write of a piece is stored
  EXPECT_EQ(SaveStore(port).dictionary(), store.dictionary());

  ASSERT_TRUE(store.commit());
  store.put("weekNumber", integerValue(2));  // equal values are not written again
  EXPECT_FALSE(store.hasUncommitted());
  EXPECT_EQ(port.commits, 1);
}

TEST(SaveStore, JoinsPiecesInOrder) {
  MemoryPort port;
  SaveStore store(port);
  store.putPieces("trackFans", Shape::plainList, true, pieces({{1, {3, 4}}, {-1, {1, 2}}, {7, {5}}}));
  store.putPieces("saveAllFilmList", Shape::recordList, true, pieces({{0, {1}}, {2, {2, 3}}}));
  ASSERT_TRUE(store.commit());

  const SaveStore again(port);
  EXPECT_EQ(again.value("trackFans"), Value{plist::read(piece({1, 2, 3, 4, 5})).value()});
  EXPECT_EQ(again.value("saveAllFilmList"), Value{Data{piece({1, 2, 3})}});
}

TEST(SaveStore, WritesOnlyDifferingPieces) {
  MemoryPort port;
  SaveStore store(port);
  store.putPieces("trackFans", Shape::plainList, true, pieces({{0, {1}}, {1, {2}}, {2, {3}}}));
  ASSERT_TRUE(store.commit());
  store.putPieces("trackFans", Shape::plainList, true, pieces({{0, {1}}, {1, {20}}}));
  ASSERT_TRUE(store.commit());
  EXPECT_EQ(port.lastCommit.size(), 2u);  // piece 1 put, piece 2 dropped
  EXPECT_EQ(port.pieces.size(), 2u);
  EXPECT_EQ(storedBytes(port, "trackFans", 1), piece({20}));
}

TEST(SaveStore, ReplacesKeysOfAnotherShape) {
  MemoryPort port;
  SaveStore store(port);
  store.putPieces("trackFans", Shape::plainList, true, pieces({{0, {1}}, {5, {2}}}));
  ASSERT_TRUE(store.commit());
  store.putPieces("trackFans", Shape::recordList, false, pieces({{1, {9}}}));
  ASSERT_TRUE(store.commit());
  EXPECT_EQ(SaveStore(port).value("trackFans"), Value{Data{piece({9})}});

  store.put("trackFans", integerValue(4));
  ASSERT_TRUE(store.commit());
  EXPECT_EQ(port.pieces.size(), 1u);
  EXPECT_EQ(SaveStore(port).value("trackFans"), integerValue(4));
}

TEST(SaveStore, RemovesKeysWithoutPieces) {
  MemoryPort port;
  SaveStore store(port);
  store.putPieces("trackFans", Shape::plainList, true, pieces({{3, {1}}}));
  store.put("weekNumber", integerValue(1));
  ASSERT_TRUE(store.commit());
  store.putPieces("trackFans", Shape::plainList, false, {{3, std::nullopt}, {4, std::nullopt}});
  store.remove("weekNumber");
  store.remove("never there");
  EXPECT_FALSE(store.contains("trackFans"));
  ASSERT_TRUE(store.commit());
  EXPECT_TRUE(port.pieces.empty());
}

TEST(SaveStore, KeepsUnknownKeys) {
  MemoryPort port;
  port.pieces[{"fromTheFuture", 0}] = {"fromTheFuture", Shape::plain, 0, rubbish()};
  SaveStore store(port);
  store.put("weekNumber", integerValue(3));
  ASSERT_TRUE(store.commit());
  EXPECT_EQ(storedBytes(port, "fromTheFuture"), rubbish());
  EXPECT_TRUE(store.contains("fromTheFuture"));
  EXPECT_EQ(store.value("fromTheFuture"), std::nullopt);
  EXPECT_EQ(store.dictionary(), (Dictionary{{"weekNumber", integerValue(3)}}));
}

TEST(SaveStore, SetsUnreadableValuesAsideOnce) {
  MemoryPort port;
  port.pieces[{"myName", 0}] = {"myName", Shape::plain, 0, rubbish()};
  SaveStore store(port);
  store.keepAside("myName");
  store.keepAside("myName");
  store.keepAside("never there");
  ASSERT_TRUE(store.commit());
  EXPECT_EQ(port.lastCommit.size(), 1u);
  EXPECT_EQ(storedBytes(port, "myName"), rubbish());

  store.put("myName", Value{std::string("Ada")});
  ASSERT_TRUE(store.commit());
  ASSERT_EQ(port.keptAside.size(), 1u);
  EXPECT_EQ(port.keptAside[0].bytes, rubbish());
}

TEST(SaveStore, SetsPiecesOfAnotherShapeAside) {
  MemoryPort port;
  for (const std::int64_t number : {0, 1, 2}) {
    port.pieces[{"trackFans", number}] = {"trackFans", Shape::plainList, number, piece({number})};
  }
  port.pieces[{"trackFans", 1}].shape = Shape::recordList;
  SaveStore store(port);
  EXPECT_EQ(store.value("trackFans"), Value{plist::read(piece({0, 2})).value()});
  EXPECT_TRUE(store.entry("trackFans")->pieces.at(1).empty());
  ASSERT_TRUE(store.commit());
  ASSERT_EQ(port.keptAside.size(), 1u);
  EXPECT_EQ(port.keptAside[0].bytes, piece({1}));
}

TEST(SaveStore, ReplacesTheWholeCareer) {
  MemoryPort port;
  SaveStore store(port);
  store.put("old", integerValue(1));
  store.putPieces("trackFans", Shape::plainList, true, pieces({{0, {1}}, {1, {2}}}));
  ASSERT_TRUE(store.commit());
  port.pieces[{"unreadable", 0}] = {"unreadable", Shape::plain, 0, rubbish()};

  SaveStore again(port);
  again.put("waiting", integerValue(2));
  const Dictionary other = {{"myName", Value{std::string("Grace")}},
                            {"trackFans", Value{Array{integerValue(7)}}}};
  again.replace(other);
  EXPECT_EQ(again.dictionary(), other);
  ASSERT_TRUE(again.commit());
  EXPECT_EQ(SaveStore(port).dictionary(), other);
  EXPECT_EQ(port.pieces.size(), 2u);
  ASSERT_EQ(port.keptAside.size(), 1u);  // what dictionary() left out
  EXPECT_EQ(port.keptAside[0].key, "unreadable");

  again.replace({});
  ASSERT_TRUE(again.commit());
  EXPECT_TRUE(port.pieces.empty());
}

// An action with several kinds of writes, selected by number.
void act(SaveStore& store, std::int64_t n) {
  store.put("weekNumber", integerValue(n));
  if (n % 7 == 3) store.remove("once");
  if (n % 7 == 1) store.put("once", integerValue(n));
  store.putPieces("trackFans", Shape::plainList, n % 5 == 0, pieces({{n % 4, {n}}, {n % 9, {n, n}}}));
  if (n % 11 == 4) store.putPieces("trackFans", Shape::plainList, false, {{n % 9, std::nullopt}});
  if (n % 13 == 6) store.replace({{"weekNumber", integerValue(n)}, {"trackFans", Value{Array{integer(n)}}}});
}

TEST(SaveStore, RetriesFailedCommits) {
  constexpr int actions = 40;
  for (int failing = 1; failing <= actions; ++failing) {
    MemoryPort port;
    port.failCommit(failing).failCommit(failing + 1);
    SaveStore store(port);
    Dictionary durable;
    for (int n = 1; n <= actions; ++n) {
      act(store, n);
      const bool done = store.commit().has_value();
      ASSERT_EQ(done, n != failing && n != failing + 1);
      ASSERT_EQ(store.hasUncommitted(), !done);
      if (done) durable = store.dictionary();
      ASSERT_EQ(SaveStore(port).dictionary(), durable) << "commit " << failing << " failed, action " << n;
    }
  }
}

TEST(SaveStore, FailedCommitsDoNotAccumulate) {
  MemoryPort port;
  port.failAll(true);
  port.pieces[{"myName", 0}] = {"myName", Shape::plain, 0, rubbish()};
  SaveStore store(port);
  for (int n = 0; n < 2'000; ++n) {
    act(store, n);
    store.keepAside("myName");
    if (n % 100 == 0) {
      const auto done = store.commit();
      ASSERT_FALSE(done);
      EXPECT_EQ(done.error(), "The disk is full.");
    }
  }
  port.failAll(false);
  ASSERT_TRUE(store.commit());
  EXPECT_LT(port.lastCommit.size(), 25u);
  EXPECT_EQ(SaveStore(port).dictionary(), store.dictionary());
}

}  // namespace
}  // namespace tb
