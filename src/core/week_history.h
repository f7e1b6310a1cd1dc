#pragma once

// The last weeks of a career, so that they can be taken back.
//
// Each End Week opens a journal: the pieces of the store that are written over from then on, as they were.
// Going back restores the pieces of the newest journal, which gives the store of the moment before that End
// Week. What this replaces is a journal too, so going back can be undone until the next End Week.
//
// Journals are rows of the store and part of its commits. They are not values: SaveStore::dictionary() has
// none of them, so exports, slots and backups have none either, and SaveStore::replace() removes them.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/property_list.h"

namespace tb {

class SaveStore;
enum class Shape : std::uint8_t;

class WeekHistory {
 public:
  static constexpr std::size_t maxWeeks = 10;

  explicit WeekHistory(SaveStore& store) : store_(store) {}

  // The number of weeks that can be taken back, and of those that can be had again.
  [[nodiscard]] std::size_t weeksBack() const { return back_.numbers.size(); }
  [[nodiscard]] std::size_t weeksForward() const { return forward_.numbers.size(); }

  // Opens a journal and removes the oldest one beyond maxWeeks. What was taken back before can't be had
  // again.
  void beginWeek();

  // Puts the store back to the moment before the last beginWeek(), or undoes that. False when there is no
  // such journal, or when it is damaged: then the store is unchanged and all journals are removed.
  bool goBack() { return go(back_, forward_); }
  bool goForward() { return go(forward_, back_); }

  // The value that a key gets by goBack() or goForward(); nothing when it gets none.
  [[nodiscard]] std::optional<plist::Value> valueBack(std::string_view key) const {
    return valueIn(back_, key);
  }
  [[nodiscard]] std::optional<plist::Value> valueForward(std::string_view key) const {
    return valueIn(forward_, key);
  }

  // Removes all journals.
  void forget();

  // --- For SaveStore only ---

  // Finds the stored journals.
  void load();

  // A piece of a value is about to be written over or removed; nothing for a piece that is new. Does nothing
  // without a journal.
  void note(std::string_view key, Shape shape, std::int64_t piece, std::optional<Bytes> before);

  // Adds what was noted to the journals. Called before each commit.
  void record();

  // The store was emptied, with the journals.
  void reset();

 private:
  using Place = std::pair<std::string, std::int64_t>;  // key and piece

  struct Before {
    Shape shape;
    std::optional<Bytes> bytes;  // nothing where there was no piece
  };
  using Pieces = std::map<Place, Before>;

  // The journals of one direction. The last one is open.
  struct Journals {
    std::string_view prefix;             // of their keys; a number follows
    std::vector<std::int64_t> numbers;   // ascending
    std::optional<std::set<Place>> has;  // the places in the open journal, once they are needed
  };

  bool go(Journals& from, Journals& to);
  void open(Journals& journals);
  void remove(Journals& journals, std::size_t index);
  void removeAll(Journals& journals);
  void add(Journals& journals);
  [[nodiscard]] std::optional<Pieces> read(const Journals& journals) const;
  [[nodiscard]] std::optional<plist::Value> valueIn(const Journals& journals, std::string_view key) const;
  void restore(Pieces pieces);

  SaveStore& store_;
  Journals back_{.prefix = "weekBefore.", .numbers = {}, .has = {}};
  Journals forward_{.prefix = "weekAfter.", .numbers = {}, .has = {}};
  Pieces noted_;  // since the last record()
};

}  // namespace tb
