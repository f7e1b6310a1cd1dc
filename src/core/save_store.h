#pragma once

// The save store: a flat dictionary with the whole game, and the port to its storage.
//
// A value is a property-list value. A list (of records or of plain values) is stored in pieces, so that a
// write is proportional to the change. value() joins the pieces: a record list is a Data with a binary
// property list, a plain list an array. Columns are part of their list's value, not values themselves.
//
// Nothing is durable until commit(), which makes all writes of an action durable together. A process killed
// at any time leaves the state before or after an action.

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
#include "core/week_history.h"

namespace tb {

enum class Shape : std::uint8_t {
  plain = 0,       // one value, in piece 0
  recordList = 1,  // pieces are arrays of records; the joined value is a Data with one array
  plainList = 2,   // pieces are arrays of plain values; the joined value is one array
  column = 3,      // pieces are stretches of a column of a record list (core/columns.h)
  journal = 4,     // pieces are what an action wrote over (core/week_history.h); no value
};

// A stored piece: `bytes` is a complete binary property list.
struct StoredPiece {
  std::string key;
  Shape shape = Shape::plain;
  std::int64_t piece = 0;
  Bytes bytes;
  auto operator<=>(const StoredPiece&) const = default;
};

// A step of a commit. Steps are applied in order, all or none.
struct StoreChange {
  enum class Kind : std::uint8_t {
    put,        // store `stored`, replacing the piece of the same key and number
    drop,       // remove piece `stored.piece` of `stored.key`
    dropKey,    // remove all pieces of `stored.key`
    dropAll,    // remove everything
    keepAside,  // set the unreadable value `stored` aside
  };
  Kind kind = Kind::put;
  StoredPiece stored;
};

// Storage for the pieces: SQLite, IndexedDB, or memory in tests.
class StorePort {
 public:
  StorePort() = default;
  StorePort(const StorePort&) = delete;
  StorePort& operator=(const StorePort&) = delete;
  virtual ~StorePort() = default;

  // All stored pieces, in any order. A piece that the storage can't read has no bytes. Called once, by the
  // store's constructor.
  virtual std::vector<StoredPiece> load() = 0;

  // Makes the changes durable, all or none. Setting aside a piece that is already set aside does nothing. The
  // error is a sentence about what went wrong.
  virtual std::expected<void, std::string> commit(std::span<const StoreChange> changes) = 0;
};

class SaveStore {
 public:
  // Loads everything from the port. Of a key with pieces of different shapes, those of the most frequent
  // shape are kept; the others are set aside and stay as unreadable pieces.
  explicit SaveStore(StorePort& port);
  SaveStore(const SaveStore&) = delete;
  SaveStore& operator=(const SaveStore&) = delete;

  [[nodiscard]] bool isEmpty() const { return entries_.empty(); }
  [[nodiscard]] bool contains(std::string_view key) const;

  // The value of the key with its pieces joined and its columns applied; nothing when there is none or it
  // can't be decoded. Pieces and columns of a list that can't be decoded are left out.
  [[nodiscard]] std::optional<plist::Value> value(std::string_view key) const;

  // The stored pieces of a key by piece number; empty when there are none. Valid until the next write.
  struct Entry {
    Shape shape = Shape::plain;
    std::map<std::int64_t, Bytes> pieces;
  };
  [[nodiscard]] const Entry* entry(std::string_view key) const;

  // The keys of a shape that start with `prefix`, in alphabetical order.
  [[nodiscard]] std::vector<std::string> keys(Shape shape, std::string_view prefix) const;

  void put(std::string_view key, const plist::Value& value);
  void remove(std::string_view key);

  // Writes pieces of a list; empty `bytes` remove a piece. With `replace`, all other stored pieces are
  // removed. A key of another shape is always replaced. A key without pieces is removed. Removing a whole
  // record list removes its columns too; otherwise columns are written like other keys.
  struct PieceWrite {
    std::int64_t piece = 0;
    std::optional<Bytes> bytes;
  };
  void putPieces(std::string_view key, Shape shape, bool replace, std::vector<PieceWrite> writes);

  // Sets the unreadable value of a key and its columns aside; the value itself stays until it is overwritten.
  // Does nothing for a missing key.
  void keepAside(std::string_view key);

  // The weeks that can be taken back.
  [[nodiscard]] WeekHistory& weeks() { return weeks_; }
  [[nodiscard]] const WeekHistory& weeks() const { return weeks_; }
  // The same for one piece of a key.
  void keepAside(std::string_view key, std::int64_t piece);

  // The whole store as a dictionary in alphabetical order, and its replacement by any dictionary. replace()
  // stores a Data or an array as a plain value, which is split into pieces when it is next written. replace()
  // sets aside what dictionary() omits because it can't be decoded.
  [[nodiscard]] plist::Dictionary dictionary() const;
  void replace(const plist::Dictionary& values);

  // Whether something was written since the last successful commit.
  [[nodiscard]] bool hasUncommitted() const { return drops_all_ || !waiting_.empty() || !aside_.empty(); }

  // Makes all writes since the last successful commit durable together. After a failure the changes are
  // repeated in the next commit. Pending changes never exceed the size of the store, because a piece is
  // pending only once.
  std::expected<void, std::string> commit();

 private:
  // Uncommitted changes of a key. The bytes are in entries_.
  struct Waiting {
    bool dropsKey = false;
    std::set<std::int64_t> pieces;  // written or removed
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
  std::set<StoredPiece> aside_;  // pending pieces to set aside
  bool drops_all_ = false;
  WeekHistory weeks_{*this};
};

}  // namespace tb
