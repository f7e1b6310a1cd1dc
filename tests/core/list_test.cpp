#include "core/list.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <ranges>
#include <string>
#include <vector>

#include "core/find.h"

namespace tb {
namespace {

// A model of the store: pieces by number, changed only by the list's reported changes.
template <class T>
struct StoredList {
  std::map<std::int64_t, std::vector<T>> pieces;
  std::size_t written = 0;  // pieces written by the last save

  void save(List<T>& list) {
    written = 0;
    if (list.replacesStored()) pieces.clear();
    for (const auto& change : list.pieces()) {
      if (!change.changed) continue;
      if (change.count == 0) {
        pieces.erase(change.piece);
        continue;
      }
      const auto first = list.begin() + static_cast<std::ptrdiff_t>(change.first);
      pieces[change.piece] = std::vector<T>(first, first + static_cast<std::ptrdiff_t>(change.count));
      written += 1;
    }
    list.changesSaved();
  }

  [[nodiscard]] List<T> load() const {
    List<T> list;
    loadInto(list);
    return list;
  }

  void loadInto(List<T>& list) const {
    List<T> loaded;
    for (const auto& [number, elements] : pieces) {
      for (const T& element : elements) *static_cast<T*>(loaded.addLoaded(number)) = element;
    }
    list.takeLoaded(loaded);
  }
};

std::vector<int> contents(const List<int>& list) { return {list.begin(), list.end()}; }

List<int> numbers(int count) {
  List<int> list;
  for (int i = 0; i < count; ++i) list.push_back(i);
  return list;
}

TEST(PersistedList, WritesOnlyChangedPieces) {
  List<int> list = numbers(1000);
  StoredList<int> stored;
  stored.save(list);
  EXPECT_EQ(stored.written, 16u);  // 1,000 plain values in pieces of 64

  list.edit(500) = -1;
  stored.save(list);
  EXPECT_EQ(stored.written, 1u);
  list.push_back(1000);
  list.push_front(-1);
  stored.save(list);
  EXPECT_EQ(stored.written, 2u);
  list.erase_at(700);
  stored.save(list);
  EXPECT_EQ(stored.written, 1u);
  EXPECT_EQ(list.erase_if([](int value) { return value > 5000; }), 0u);
  stored.save(list);
  EXPECT_EQ(stored.written, 0u);
  EXPECT_EQ(contents(stored.load()), contents(list));
}

// Records change in the middle of their list and have shorter pieces.
struct Entry {
  std::int64_t id = 0;
  std::int64_t place = 0;
};
struct Receipt {
  static constexpr std::size_t pieceLength = 100;
};

TEST(PersistedList, RecordsHaveShortPiecesUnlessTheyDeclareOthers) {
  List<Entry> entries;
  List<Receipt> receipts;
  for (int i = 0; i < 1000; ++i) {
    entries.push_back({});
    receipts.push_back({});
  }
  EXPECT_EQ(entries.pieces().size(), 125u);
  EXPECT_EQ(receipts.pieces().size(), 10u);
}

// The index of ids against a search from front to back, with ids of any size while the list changes at
// random.
TEST(PersistedList, FindsTheSameByIdAsASearch) {
  std::mt19937 chance(5);
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(chance() % n); };
  const std::vector<std::int64_t> ids = {0,  1,   2,         63,        64,        66,
                                         -1, -65, 1'000'000, 1'000'064, INT64_MAX, INT64_MIN};
  List<Entry> list;
  for (int step = 0; step < 2000; ++step) {
    const Entry added{.id = ids[below(ids.size())], .place = step};
    const std::size_t choice = below(10);
    if (choice < 6) list.push_back(added);
    if (choice == 6) list.push_front(added);
    if (choice == 7 && !list.empty()) list.erase_at(below(list.size()));
    if (choice == 8 && below(200) == 0) list.clear();

    const std::int64_t wanted = ids[below(ids.size())];
    std::vector<std::int64_t> searched;
    for (const Entry& entry : list) {
      if (entry.id == wanted) searched.push_back(entry.place);
    }
    std::vector<std::int64_t> found;
    forEachWith(list, &Entry::id, wanted, [&](std::size_t index) { found.push_back(list[index].place); });
    ASSERT_EQ(found, searched);
    const auto first = find(list, &Entry::id, wanted);
    ASSERT_EQ(first.has_value(), !searched.empty());
    if (first) ASSERT_EQ(list[*first].place, searched.front());
  }
}

TEST(PersistedList, AListCanBeAssignedFromAViewOfItself) {
  List<int> list = numbers(100);
  list.assign(list | std::views::filter([](int value) { return value % 2 == 1; }));
  EXPECT_EQ(list.size(), 50u);
  EXPECT_EQ(list[0], 1);
  EXPECT_EQ(list.back(), 99);
}

TEST(PersistedList, PiecesWithGapsAndEmptyPiecesLoadInOrder) {
  StoredList<int> stored;
  stored.pieces = {{-4'000'000'000'000, {1, 2}}, {-7, {}}, {0, {}}, {3, {3}}, {9'000'000'000'000, {4, 5}}};
  List<int> list = stored.load();
  EXPECT_EQ(contents(list), (std::vector{1, 2, 3, 4, 5}));
  EXPECT_FALSE(list.changed());

  list.edit(2) = 30;
  list.push_back(6);
  list.pop_front();
  stored.save(list);
  EXPECT_EQ(stored.written, 3u);
  EXPECT_EQ(contents(stored.load()), (std::vector{2, 30, 4, 5, 6}));
}

// Compares random operations, saves and relaunches with std::vector.
class PersistedListFuzz : public testing::TestWithParam<unsigned> {};

TEST_P(PersistedListFuzz, LoadsWhatWasSaved) {
  std::mt19937 chance(GetParam());
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(chance);
  };
  List<std::string> list;
  std::vector<std::string> model;
  StoredList<std::string> stored;
  const std::size_t growth = below(4);  // some lists grow, others become empty repeatedly

  for (int step = 0; step < 3000; ++step) {
    const std::string text = std::to_string(step);
    const std::size_t choice = below(16);
    const std::size_t at = model.empty() ? 0 : below(model.size());
    if (choice < 3) {
      list.push_back(text);
      model.push_back(text);
    } else if (choice < 5) {
      list.push_front(text);
      model.insert(model.begin(), text);
    } else if (choice == 5) {
      for (std::size_t i = 0; i < growth * 10; ++i) {
        list.push_back(text);
        model.push_back(text);
      }
    } else if (choice < 9 && !model.empty()) {
      list.erase_at(at);
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
    } else if (choice == 9 && !model.empty()) {
      list.pop_back();
      model.pop_back();
    } else if (choice == 10) {
      const auto ends = [digit = text.back()](const std::string& value) { return value.back() == digit; };
      EXPECT_EQ(list.erase_if(ends), std::erase_if(model, ends));
    } else if (choice < 13 && !model.empty()) {
      list.edit(at) = model[at] = text;
    } else if (choice == 13 && below(20) == 0) {
      list.assign(std::vector<std::string>(list.begin(), list.end()));
    } else if (choice == 14 && below(20) == 0) {
      list.clear();
      model.clear();
    } else if (choice == 15) {
      stored.save(list);
      ASSERT_FALSE(list.changed());
      const List<std::string> loaded = stored.load();
      ASSERT_EQ(std::vector(loaded.begin(), loaded.end()), model) << "after step " << step;
      if (below(3) == 0) stored.loadInto(list);
    }
    ASSERT_EQ(list.size(), model.size());
  }
  EXPECT_EQ(std::vector(list.begin(), list.end()), model);
}

INSTANTIATE_TEST_SUITE_P(Careers, PersistedListFuzz, testing::Range(0u, 16u));

}  // namespace
}  // namespace tb
