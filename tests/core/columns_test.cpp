#include "core/columns.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/fields/film.h"
#include "core/record_codec.h"
#include "tests/core/launch.h"

namespace tb {
namespace {

using plist::Array;
using plist::Data;
using plist::Value;
using test::MemoryPort;

constexpr const char* films = "saveAllFilmList";
const std::string popularity = columnKey(films, "currentPopularity");
const std::string popularityBefore = columnKey(films, "lastWeekPopularity");

struct FilmLaunch : test::Launch {
  using test::Launch::Launch;
  List<Film>& list() { return world.saveAllFilmList; }
};

Film film(std::int64_t id) {
  return {.filmId = id,
          .title = "Film " + std::to_string(id),
          .currentPopularity = 80 + static_cast<double>(id % 7) / 8,
          .lastWeekPopularity = 79};
}

// A week in which the talk about every film changes.
void drift(List<Film>& list, double points) {
  for (std::size_t index = 0; index < list.size(); ++index) {
    const double before = list[index].currentPopularity;
    list.set(index, &Film::currentPopularity, before + points + static_cast<double>(index) / 64);
    list.set(index, &Film::lastWeekPopularity, before);
  }
}

// 600 films, which are two stretches, saved and then changed by a week that is saved, too. Answers with the
// films as they were first, and as they are.
std::pair<List<Film>, List<Film>> storeCareer(MemoryPort& port) {
  FilmLaunch play(port);
  for (std::int64_t id = 0; id < 600; ++id) play.list().push_back(film(id));
  play.save();
  const List<Film> first = play.list();
  drift(play.list(), -3);
  play.save();
  return {first, play.list()};
}

std::vector<Film> filmsIn(const SaveStore& store) {
  const auto value = store.value(films);
  const auto* const data = value ? value->as<Data>() : nullptr;
  return data != nullptr ? decodeRecords<Film>(data->bytes).value_or(std::vector<Film>{})
                         : std::vector<Film>{};
}

bool same(const std::vector<Film>& stored, const List<Film>& list) {
  return std::ranges::equal(stored, list);
}

TEST(Columns, SetStoresColumnsWithoutRecords) {
  MemoryPort port;
  const List<Film> now = storeCareer(port).second;
  EXPECT_EQ(port.lastCommit.size(), 4u);
  for (const StoreChange& change : port.lastCommit) EXPECT_EQ(change.stored.shape, Shape::column);

  FilmLaunch next(port);
  EXPECT_EQ(next.list(), now);
  EXPECT_EQ(next.log, "");
  EXPECT_FALSE(next.list().changed());

  // Set or edited, any other field is saved with its record.
  next.list().set(7, &Film::title, "Another");
  next.list().edit(500).myRating = 9;
  next.save();
  EXPECT_EQ(FilmLaunch(port).list(), next.list());
}

// Exports contain no columns: a list is one property list with the current values.
TEST(Columns, ValueMergesColumns) {
  MemoryPort port;
  const List<Film> now = storeCareer(port).second;
  const SaveStore store(port);
  EXPECT_TRUE(same(filmsIn(store), now));
  EXPECT_FALSE(store.value(popularity));
  const plist::Dictionary all = store.dictionary();
  EXPECT_TRUE(std::ranges::contains(all, films, &std::pair<std::string, Value>::first));
  EXPECT_FALSE(std::ranges::contains(all, popularity, &std::pair<std::string, Value>::first));

  // After an import, no column of the previous career remains.
  MemoryPort other;
  FilmLaunch play(other);
  for (std::int64_t id = 0; id < 600; ++id) play.list().push_back(film(1000 + id));
  play.save();
  play.store.replace(all);
  ASSERT_TRUE(play.store.commit());
  FilmLaunch next(other);
  EXPECT_EQ(next.list(), now);
  drift(next.list(), 1);
  next.save();
  EXPECT_EQ(FilmLaunch(other).list(), next.list());
}

TEST(Columns, LoadsStoresWithoutColumns) {
  MemoryPort port;
  const List<Film> first = storeCareer(port).first;
  std::erase_if(port.pieces, [](const auto& entry) { return entry.second.shape == Shape::column; });
  FilmLaunch next(port);
  EXPECT_EQ(next.list(), first);
  EXPECT_EQ(next.log, "");
}

TEST(Columns, RemovedWithTheirList) {
  const std::pair<const char*, std::function<void(FilmLaunch&)>> ways[] = {
      {"cleared", [](FilmLaunch& play) { play.list().clear(); }},
      {"emptied", [](FilmLaunch& play) { play.list().erase_if([](const Film&) { return true; }); }},
      {"removed", [](FilmLaunch& play) { play.store.remove(films); }},
      {"written over", [](FilmLaunch& play) { play.store.put(films, Value{Data{}}); }},
  };
  for (const auto& [way, go] : ways) {
    MemoryPort port;
    storeCareer(port);
    FilmLaunch play(port);
    go(play);
    play.save();
    for (const auto& [place, piece] : port.pieces) EXPECT_NE(piece.shape, Shape::column) << way;
  }
}

// Damage loses the values of its stretch or column since the records were stored. The next save repairs it.
TEST(Columns, DamageKeepsTheList) {
  using Damage = std::function<void(StoredPiece&)>;
  const auto holding = [](Value value) {
    return [value](StoredPiece& piece) { piece.bytes = plist::write(value); };
  };
  const std::pair<const char*, Damage> damages[] = {
      {"cut", [](StoredPiece& piece) { piece.bytes.resize(piece.bytes.size() / 2); }},
      {"empty", [](StoredPiece& piece) { piece.bytes.clear(); }},
      {"too short", holding(Value{Array(511, Value{5.0})})},
      {"too long", holding(Value{Array(513, Value{5.0})})},
      {"no numbers", holding(Value{Array(512, Value{std::string("5")})})},
      {"no array", holding(Value{std::int64_t{5}})},
      {"of another shape", [](StoredPiece& piece) { piece.shape = Shape::plain; }},
  };
  for (const auto& [what, damage] : damages) {
    MemoryPort port;
    const auto [first, now] = storeCareer(port);
    damage(port.pieces.at({popularity, 0}));
    port.pieces[{popularity, 9}] = {popularity, Shape::column, 9, Bytes{}};  // of no part of the list
    FilmLaunch next(port);
    ASSERT_EQ(next.list().size(), now.size()) << what;
    for (std::size_t index = 0; index < now.size(); ++index) {
      const Film& film = next.list()[index];
      EXPECT_EQ(film.lastWeekPopularity, now[index].lastWeekPopularity) << what;
      if (index < 512) EXPECT_EQ(film.currentPopularity, first[index].currentPopularity) << what;
    }
    EXPECT_EQ(filmsIn(next.store).size(), now.size()) << what;

    drift(next.list(), 2);
    next.save();
    EXPECT_FALSE(port.keptAside.empty()) << what;
    FilmLaunch last(port);
    EXPECT_EQ(last.list(), next.list()) << what;
    EXPECT_EQ(last.log, "") << what;
  }
}

// Random weeks: titles are added and removed, records change, popularities drift, commits fail and the game
// restarts. The store always holds the films of the last successful commit.
TEST(Columns, LoadsWhatWasCommitted) {
  for (unsigned seed = 0; seed < 3; ++seed) {
    std::mt19937 chance(seed);
    const auto oneIn = [&](unsigned n) { return chance() % n == 0; };
    MemoryPort port;
    auto play = std::make_unique<FilmLaunch>(port);
    List<Film> committed;
    for (std::int64_t week = 0; week < 60; ++week) {
      List<Film>& list = play->list();
      for (unsigned title = 0; title < seed * 6; ++title) list.push_front(film(week * 100 + title));
      if (oneIn(3)) drift(list, -0.5);
      if (!list.empty() && oneIn(3)) list.edit(chance() % list.size()).myRating += 1;
      if (!list.empty() && oneIn(5)) list.set(chance() % list.size(), &Film::currentPopularity, 50);
      if (oneIn(6)) list.erase_if([&](const Film& each) { return each.filmId % 11 == week % 11; });
      if (oneIn(40)) list.clear();
      if (oneIn(8)) port.failCommit(1);
      saveChanges(play->game);
      if (play->store.commit()) committed = list;
      if (!oneIn(3)) continue;
      ASSERT_TRUE(same(filmsIn(play->store), list)) << "seed " << seed << ", week " << week;
      auto next = std::make_unique<FilmLaunch>(port);
      ASSERT_EQ(next->list(), committed) << "seed " << seed << ", week " << week;
      if (oneIn(2)) play = std::move(next);
    }
  }
}

}  // namespace
}  // namespace tb
