#pragma once

// The last weeks of a career, so that they can be taken back.
//
// Each End Week opens a journal. From then on, each commit adds a record to it: what gives the pieces that
// the commit changes back as they were. Most pieces change little, so this is their difference
// (core/byte_delta.h). Going back applies the records of the newest journal from the last to the first, which
// gives the store of the moment before that End Week. What this changes is recorded in a journal too, so
// going back can be undone until the next End Week.
//
// Journals are rows of the store and part of its commits. They are not values: SaveStore::dictionary() has
// none of them, so exports, slots and backups have none either, and SaveStore::replace() removes them.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
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
  // Journals beyond these are removed together, because each removal writes pages of the database of its own.
  static constexpr std::size_t removedTogether = 5;

  explicit WeekHistory(SaveStore& store) : store_(store) {}

  // The number of weeks that can be taken back, and of those that can be had again; together at most
  // maxWeeks.
  [[nodiscard]] std::size_t weeksBack() const {
    return std::min(back_.keys.size(), maxWeeks - std::min(maxWeeks, weeksForward()));
  }
  [[nodiscard]] std::size_t weeksForward() const { return forward_.keys.size(); }

  // Opens a journal and removes the oldest ones. What was taken back before can't be had again.
  void beginWeek();

  // Puts the store back to the moment before the last beginWeek(), or undoes that. False when there is no
  // such journal, or when it is damaged: then the store is unchanged and all journals are removed.
  bool goBack() { return weeksBack() > 0 && go(back_, forward_); }
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

  // A piece of a value changes from `before` to `after`; null stands for no piece. Does nothing without a
  // journal.
  void note(std::string_view key, Shape shape, std::int64_t piece, const Bytes* before, const Bytes* after);

  // Adds what was noted to the journals. Called before each commit.
  void record();

  // The store was emptied, with the journals.
  void reset();

 private:
  using Place = std::pair<std::string, std::int64_t>;  // key and piece

  struct Earlier {
    Shape shape;
    std::optional<Bytes> bytes;  // nothing where there was no piece
  };
  using Pieces = std::map<Place, Earlier>;

  // The journals of one direction. The last one is open.
  struct Journals {
    std::string_view prefix;        // of their keys; a number follows
    std::vector<std::string> keys;  // oldest first
  };

  bool go(Journals& from, Journals& to);
  static void open(Journals& journals);
  void removeOldest(Journals& journals, std::size_t count);
  void add(Journals& journals);
  [[nodiscard]] bool undo(std::span<const std::byte> changes, Pieces& pieces) const;
  [[nodiscard]] bool undoRecord(std::span<const std::byte> record, Pieces& pieces) const;
  [[nodiscard]] const Bytes* pieceAt(const Place& place, const Pieces& pieces) const;
  [[nodiscard]] std::optional<Pieces> read(const Journals& journals) const;
  [[nodiscard]] std::optional<plist::Value> valueIn(const Journals& journals, std::string_view key) const;
  void restore(Pieces pieces);

  SaveStore& store_;
  Journals back_{.prefix = "weekBefore.", .keys = {}};
  Journals forward_{.prefix = "weekAfter.", .keys = {}};
  Bytes noted_;           // changes since the last record()
  std::string last_key_;  // of the last of them
};

}  // namespace tb
