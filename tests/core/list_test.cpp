#include "core/list.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <ranges>
#include <string>
#include <vector>

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
    switch (below(16)) {
      case 0:
      case 1:
      case 2:
        list.push_back(text);
        model.push_back(text);
        break;
      case 3:
      case 4:
        list.push_front(text);
        model.insert(model.begin(), text);
        break;
      case 5:
        for (std::size_t i = 0; i < growth * 10; ++i) {
          list.push_back(text);
          model.push_back(text);
        }
        break;
      case 6:
      case 7:
      case 8:
        if (model.empty()) break;
        if (const std::size_t at = below(model.size()); true) {
          list.erase_at(at);
          model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
        }
        break;
      case 9:
        if (model.empty()) break;
        list.pop_back();
        model.pop_back();
        break;
      case 10:
        if (const char digit = static_cast<char>('0' + below(10)); true) {
          const auto ends = [digit](const std::string& value) { return value.back() == digit; };
          EXPECT_EQ(list.erase_if(ends), std::erase_if(model, ends));
        }
        break;
      case 11:
      case 12:
        if (model.empty()) break;
        if (const std::size_t at = below(model.size()); true) list.edit(at) = model[at] = text;
        break;
      case 13:
        if (below(20) > 0) break;
        list.assign(std::vector<std::string>(list.begin(), list.end()));
        break;
      case 14:
        if (below(20) > 0) break;
        list.clear();
        model.clear();
        break;
      default:
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
