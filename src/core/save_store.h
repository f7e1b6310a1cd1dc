#pragma once

// The save store: the one flat dictionary in which the whole game is kept, and the small port under it.
//
// A value is a property-list value under a key. A list (of records, or of plain values) may be stored in
// pieces, so that a write costs what changed; asked for its value, the store joins the pieces, and nobody
// outside sees the difference: a record list is one Data holding a binary property list, a plain list one
// array. Columns are a part of their list's value, and no values themselves.
//
// Nothing is durable until commit(): all that one player action wrote then becomes durable together. A
// process killed at any instant leaves the state before or after an action, never between.

#include <cstdint>
#include <expected>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/columns.h"
#include "core/property_list.h"

namespace tb {

enum class Shape : std::uint8_t {
  plain = 0,       // one value, in piece 0
  recordList = 1,  // pieces are arrays of records; the joined value is a Data that holds their one array
  plainList = 2,   // pieces are arrays of plain values; the joined value is their one array
  column = 3,      // pieces are stretches of a column of a record list (core/columns.h)
};

// One piece as the port keeps it: `bytes` is a complete binary property list.
struct StoredPiece {
  std::string key;
  Shape shape = Shape::plain;
  std::int64_t piece = 0;
  Bytes bytes;
  bool operator==(const StoredPiece&) const = default;
};

// One step of a commit. Steps are carried out in order, all or none.
struct StoreChange {
  enum class Kind : std::uint8_t {
    put,        // store `stored`, replacing the piece of the same key and number
    drop,       // forget piece `stored.piece` of `stored.key`
    dropKey,    // forget every piece of `stored.key`
    dropAll,    // forget everything
    keepAside,  // keep `stored` where nothing reads it: a value that could not be understood
  };
  Kind kind = Kind::put;
  StoredPiece stored;
};

// Where the pieces live: SQLite, IndexedDB, or memory in tests.
class StorePort {
 public:
  StorePort() = default;
  StorePort(const StorePort&) = delete;
  StorePort& operator=(const StorePort&) = delete;
  virtual ~StorePort() = default;

  // Everything that is stored, in any order. Asked once, by the store's constructor.
  virtual std::vector<StoredPiece> load() = 0;

  // Makes the changes durable, all or none. Keeping aside what is kept aside already does nothing. An error
  // is a plain sentence about what went wrong.
  virtual std::expected<void, std::string> commit(std::span<const StoreChange> changes) = 0;
};

class SaveStore {
 public:
  // Reads everything that the port holds. A key whose pieces are of different shapes can't be joined: it is
  // kept aside and counts as missing.
  explicit SaveStore(StorePort& port);

  [[nodiscard]] bool isEmpty() const { return entries_.empty(); }
  [[nodiscard]] bool contains(std::string_view key) const;

  // The value under the key, its pieces joined and its columns laid over them; nothing when there is none or
  // when a piece does not decode. A column that does not decode is passed over.
  [[nodiscard]] std::optional<plist::Value> value(std::string_view key) const;

  // The stored pieces of a key, by piece number; empty when there is none. Good until the next write.
  struct Entry {
    Shape shape = Shape::plain;
    std::map<std::int64_t, Bytes> pieces;
  };
  [[nodiscard]] const Entry* entry(std::string_view key) const;

  void put(std::string_view key, const plist::Value& value);
  void remove(std::string_view key);

  // A list in pieces. `bytes` empty: the piece is gone. With `replace`, every stored piece that is not
  // written goes. A key of another shape is always replaced. A key whose last piece goes is no longer there.
  // Where a record list goes as a whole, its columns go along; otherwise they are written like other keys.
  struct PieceWrite {
    std::int64_t piece = 0;
    std::optional<Bytes> bytes;
  };
  void putPieces(std::string_view key, Shape shape, bool replace, std::vector<PieceWrite> writes);

  // Sets aside what is stored under the key, as it is and with its columns, when it can't be understood; the
  // value itself stays until it is written over. Does nothing for a key that is not there.
  void keepAside(std::string_view key);

  // The whole store as one dictionary, keys in alphabetical order, and the way back. replace() takes any
  // dictionary: a Data or an array comes in as one plain value and is cut into pieces when next written.
  // What dictionary() has to leave out because it does not decode is kept aside by replace().
  [[nodiscard]] plist::Dictionary dictionary() const;
  void replace(const plist::Dictionary& values);

  // True when something was written since the last successful commit.
  [[nodiscard]] bool hasUncommitted() const { return drops_all_ || !waiting_.empty() || !aside_.empty(); }

  // Makes all that was written since the last successful commit durable, together. On failure nothing is
  // lost from memory: the changes stay and go with the next commit. What waits never outgrows the store,
  // however long commits fail: a piece written twice waits once.
  std::expected<void, std::string> commit();

 private:
  // What the port does not know yet of a key. The bytes themselves stand in entries_.
  struct Waiting {
    bool dropsKey = false;
    std::set<std::int64_t> pieces;  // written or gone
  };

  void setPiece(std::string_view key, Entry& entry, std::int64_t piece, Bytes bytes);
  void dropPiece(std::string_view key, Entry& entry, std::int64_t piece);
  void dropKey(std::string_view key, Entry& entry);
  [[nodiscard]] std::vector<std::string> columnsOf(std::string_view list) const;
  void layColumns(std::string_view key, plist::Array& records, const Stretches& stretches) const;
  void addAside(StoredPiece piece);
  Waiting& waitingFor(std::string_view key);
  [[nodiscard]] std::vector<StoreChange> uncommitted() const;

  StorePort& port_;
  std::map<std::string, Entry, std::less<>> entries_;
  std::map<std::string, Waiting, std::less<>> waiting_;
  std::vector<StoredPiece> aside_;  // waits to be kept aside
  bool drops_all_ = false;
};

}  // namespace tb
