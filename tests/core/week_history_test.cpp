#include "core/week_history.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "core/save_store.h"
#include "tests/memory_port.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

using plist::Array;
using plist::Value;
using test::MemoryPort;

// A career whose actions write scalars and lists of all shapes at random. `now` is what the store should
// have.
class WeeksOfAStore : public testing::Test {
 protected:
  using Rows = std::map<std::pair<std::string, std::int64_t>, StoredPiece>;

  Int upTo(Int most) { return RandomRange(random, most); }

  static Bytes list(Int number) { return plist::write(Value{Array(3, Value{number})}); }

  void write() {
    const Int number = upTo(1'000'000);
    switch (upTo(7)) {
      case 0:
        return store->put("cash", Value{number});
      case 1:
        return store->putPieces("films", Shape::recordList, false, {{upTo(4), list(number)}});
      case 2:
        return store->putPieces("films", Shape::recordList, false, {{upTo(4), std::nullopt}});
      case 3:
        return store->putPieces("films.popularity", Shape::column, upTo(2) == 0, {{0, list(number)}});
      case 4:
        return store->putPieces("films", Shape::recordList, true, {{1, list(number)}, {5, list(number)}});
      case 5:
        return store->remove(upTo(2) == 0 ? "films" : "cash");
      default:
        return store->put("films", Value{number});  // as after an import
    }
  }
  void act() {
    for (Int writes = upTo(6); writes > 0; --writes) write();
    port.failAll(upTo(4) == 0);
    static_cast<void>(store->commit());
    port.failAll(false);
  }
  // Ends the process, which loses nothing.
  void relaunch() {
    ASSERT_TRUE(store->commit());
    store.emplace(port);
  }

  // What is stored besides the journals.
  Rows rows() {
    EXPECT_TRUE(store->commit());
    Rows values = port.pieces;
    std::erase_if(values, [](const auto& row) { return row.second.shape == Shape::journal; });
    return values;
  }

  test::SeededRandom random{11};
  MemoryPort port;
  std::optional<SaveStore> store{port};
};

TEST_F(WeeksOfAStore, AnyNumberOfWeeksIsTakenBackAndHadAgain) {
  std::vector<Rows> before;  // before each End Week
  for (int round = 0; round < 200; ++round) {
    for (Int weeks = upTo(5); weeks >= 0; --weeks) {
      act();
      before.push_back(rows());
      if (upTo(3) == 0) relaunch();
      store->weeks().beginWeek();
      act();
      act();
    }
    std::vector<Rows> left;  // before each step back
    const std::size_t steps = store->weeks().weeksBack();
    ASSERT_LE(steps, WeekHistory::maxWeeks);
    for (std::size_t step = 0; step < steps && upTo(5) > 0; ++step) {
      left.push_back(rows());
      ASSERT_TRUE(store->weeks().goBack());
      ASSERT_EQ(rows(), before.back()) << "round " << round << ", step " << step;
      before.pop_back();
      if (upTo(2) == 0) act();
      if (upTo(4) == 0) relaunch();
    }
    ASSERT_EQ(store->weeks().weeksForward(), left.size());
    for (Int steps = upTo(4); steps > 0 && !left.empty(); --steps) {
      before.emplace_back();  // no longer compared: what was done after going back belongs to that week
      ASSERT_TRUE(store->weeks().goForward());
      ASSERT_EQ(rows(), left.back()) << "round " << round;
      left.pop_back();
      if (upTo(4) == 0) relaunch();
    }
    // Rows before weeks that were had again are not known.
    if (std::ranges::contains(before, Rows{})) {
      store->weeks().forget();
      before.clear();
    }
  }
}

TEST_F(WeeksOfAStore, TenWeeksAreOfferedHoweverManyWereEnded) {
  for (Int week = 1; week <= 40; ++week) {
    store->put("week", Value{week});
    store->weeks().beginWeek();
    ASSERT_TRUE(store->commit());
    EXPECT_EQ(store->weeks().weeksBack(), std::min<Int>(week, 10));
    if (upTo(3) == 0) relaunch();
  }
  store->put("week", Value{Int{41}});
  for (Int back = 0; back < 10; ++back) {
    EXPECT_EQ(store->weeks().valueBack("week"), Value{40 - back});
    ASSERT_TRUE(store->weeks().goBack());
    EXPECT_EQ(store->weeks().weeksForward(), back + 1);
  }
  EXPECT_FALSE(store->weeks().goBack());
  EXPECT_EQ(store->value("week"), Value{Int{31}});
}

// As the first builds with journals wrote them.
TEST_F(WeeksOfAStore, JournalsOfWholePiecesAreGoneBackThrough) {
  store->put("cash", Value{Int{100}});
  store->putPieces("films", Shape::recordList, false, {{1, list(1)}});
  const Rows before = rows();
  store->put("cash", Value{Int{7}});
  store->putPieces("films", Shape::recordList, false, {{1, list(2)}, {2, list(3)}});
  const auto places = [](Array values) { return plist::write(Value{std::move(values)}); };
  const auto record = [&](const char* key, Int piece, Int shape, Bytes bytes) {
    return places({Value{key}, Value{piece}, Value{shape}, Value{plist::Data{std::move(bytes)}}});
  };
  store->putPieces("weekBefore.9", Shape::journal, false,
                   {{0, record("cash", 0, 0, plist::write(Value{Int{100}}))},
                    {1, record("films", 1, 1, list(1))},
                    {2, record("films", 2, 1, {})}});
  relaunch();
  store->put("cash", Value{Int{8}});  // is recorded as a difference
  relaunch();
  const Rows after = rows();
  EXPECT_EQ(store->weeks().valueBack("cash"), Value{Int{100}});
  ASSERT_TRUE(store->weeks().goBack());
  EXPECT_EQ(rows(), before);
  ASSERT_TRUE(store->weeks().goForward());
  EXPECT_EQ(rows(), after);
}

TEST_F(WeeksOfAStore, ADamagedJournalOrPieceChangesNothing) {
  for (const bool isJournal : {true, false}) {
    store->put("cash", Value{Int{1}});
    store->weeks().beginWeek();
    store->put("cash", Value{Int{2}});
    relaunch();
    for (auto& [place, stored] : port.pieces) {
      if ((stored.shape == Shape::journal) == isJournal) stored.bytes.back() ^= std::byte{1};
    }
    store.emplace(port);
    const Rows left = rows();
    EXPECT_FALSE(store->weeks().goBack());
    EXPECT_EQ(rows(), left);
    EXPECT_EQ(store->weeks().weeksBack(), 0U);
  }
}

}  // namespace
}  // namespace tb
