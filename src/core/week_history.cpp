#include "core/week_history.h"

#include <charconv>
#include <ranges>

#include "core/byte_delta.h"
#include "core/debug_log.h"
#include "core/save_store.h"

namespace tb {

namespace {

// A record is this byte, the checksum of what follows, and the changes from the first to the last. A change
// is its key, the piece's number and shape, what there was before, and the bytes that this takes. An empty
// key stands for the key of the change before.
constexpr std::byte recordMark{1};

enum class Before : std::uint8_t {
  absent = 0,  // there was no piece
  whole = 1,   // the piece follows
  delta = 2,   // the difference to the piece after the change follows
};

struct Change {
  std::string_view key;
  std::int64_t piece = 0;
  Shape shape = Shape::plain;
  Before before = Before::absent;
  std::span<const std::byte> bytes;
};

// Records of the first builds with journals are flat arrays: for each piece its key, number, shape and bytes,
// as it was before the first change in the week. No bytes stand for no piece.
constexpr std::size_t valuesOfPiece = 4;

std::int64_t numberIn(std::string_view key, std::string_view prefix) {
  std::int64_t number = 0;
  std::from_chars(key.data() + prefix.size(), key.data() + key.size(), number);
  return number;
}

// With leading zeros the order of the keys is that of the weeks: neighbors are neighbors in a database, too,
// and a commit writes fewer of its pages.
std::string keyOf(std::string_view prefix, std::int64_t number) {
  constexpr std::size_t length = 6;
  const std::string digits = std::to_string(number);
  return std::string(prefix) + std::string(length - std::min(length, digits.size()), '0') + digits;
}

void putBytes(Bytes& to, std::span<const std::byte> bytes) {
  putNumber(to, static_cast<std::int64_t>(bytes.size()));
  to.insert(to.end(), bytes.begin(), bytes.end());
}

std::optional<std::span<const std::byte>> takeSized(std::span<const std::byte>& bytes) {
  return takeBytes(bytes, takeNumber(bytes).value_or(-1));
}

std::optional<Shape> shapeAt(std::int64_t number) {
  if (number < 0 || number >= static_cast<std::int64_t>(Shape::journal)) return std::nullopt;
  return static_cast<Shape>(number);
}

std::optional<Before> beforeAt(std::int64_t number) {
  if (number < 0 || number > static_cast<std::int64_t>(Before::delta)) return std::nullopt;
  return static_cast<Before>(number);
}

// Removes a change from the front; nothing when it is damaged.
std::optional<Change> takeChange(std::span<const std::byte>& bytes, std::string_view lastKey) {
  const auto key = takeSized(bytes);
  const auto piece = takeNumber(bytes);
  const auto shape = shapeAt(takeNumber(bytes).value_or(-1));
  const auto before = beforeAt(takeNumber(bytes).value_or(-1));
  const auto rest = takeSized(bytes);
  if (!key || !piece || !shape || !before || !rest) return std::nullopt;
  const std::string_view name(reinterpret_cast<const char*>(key->data()), key->size());
  return Change{name.empty() ? lastKey : name, *piece, *shape, *before, *rest};
}

}  // namespace

void WeekHistory::load() {
  for (Journals* const journals : {&back_, &forward_}) {
    journals->keys = store_.keys(Shape::journal, journals->prefix);
    std::ranges::sort(journals->keys, {},
                      [&](const std::string& key) { return numberIn(key, journals->prefix); });
  }
}

void WeekHistory::beginWeek() {
  record();
  removeOldest(forward_, forward_.keys.size());
  open(back_);
  if (back_.keys.size() > maxWeeks + removedTogether) removeOldest(back_, back_.keys.size() - maxWeeks);
}

// What was written before in this action belongs to the week that is taken back.
bool WeekHistory::go(Journals& from, Journals& to) {
  record();
  if (from.keys.empty()) return false;
  auto pieces = read(from);
  if (!pieces) {
    debugLog("A journal of a week is damaged. No week can be taken back.");
    forget();
    return false;
  }
  store_.remove(from.keys.back());
  from.keys.pop_back();
  open(to);
  restore(*std::move(pieces));
  add(to);
  noted_.clear();
  return true;
}

void WeekHistory::forget() {
  for (Journals* const journals : {&back_, &forward_}) removeOldest(*journals, journals->keys.size());
  noted_.clear();
}

void WeekHistory::reset() {
  back_.keys.clear();
  forward_.keys.clear();
  noted_.clear();
}

void WeekHistory::note(std::string_view key, Shape shape, std::int64_t piece, const Bytes* before,
                       const Bytes* after) {
  if (shape == Shape::journal || (back_.keys.empty() && forward_.keys.empty())) return;
  putBytes(noted_, std::as_bytes(std::span(noted_.empty() || key != last_key_ ? key : std::string_view())));
  last_key_ = key;
  putNumber(noted_, piece);
  putNumber(noted_, static_cast<std::int64_t>(shape));
  if (before == nullptr || before->empty()) {
    putNumber(noted_, static_cast<std::int64_t>(Before::absent));
    putBytes(noted_, {});
  } else if (after == nullptr) {
    putNumber(noted_, static_cast<std::int64_t>(Before::whole));
    putBytes(noted_, *before);
  } else {
    putNumber(noted_, static_cast<std::int64_t>(Before::delta));
    putBytes(noted_, deltaTo(*before, *after));
  }
}

void WeekHistory::record() {
  add(back_);
  add(forward_);
  noted_.clear();
}

void WeekHistory::open(Journals& journals) {
  const std::int64_t last = journals.keys.empty() ? 0 : numberIn(journals.keys.back(), journals.prefix);
  journals.keys.push_back(keyOf(journals.prefix, last + 1));
}

void WeekHistory::removeOldest(Journals& journals, std::size_t count) {
  const auto end = journals.keys.begin() + static_cast<std::ptrdiff_t>(count);
  for (auto key = journals.keys.begin(); key != end; ++key) store_.remove(*key);
  journals.keys.erase(journals.keys.begin(), end);
}

// Adds what was noted to the open journal as a record. Stores a new journal even when nothing was noted.
void WeekHistory::add(Journals& journals) {
  if (journals.keys.empty()) return;
  const std::string& key = journals.keys.back();
  const SaveStore::Entry* const stored = store_.entry(key);
  if (stored != nullptr && noted_.empty()) return;
  Bytes record{recordMark};
  putNumber(record, checksumOf(noted_));
  record.insert(record.end(), noted_.begin(), noted_.end());
  std::vector<SaveStore::PieceWrite> writes;
  writes.push_back(
      {.piece = stored == nullptr ? 0 : stored->pieces.rbegin()->first + 1, .bytes = std::move(record)});
  store_.putPieces(key, Shape::journal, false, std::move(writes));
}

// Undoes the changes in `pieces`. False when they are damaged.
bool WeekHistory::undo(std::span<const std::byte> changes, Pieces& pieces) const {
  std::vector<Change> all;
  while (!changes.empty()) {
    const auto change = takeChange(changes, all.empty() ? std::string_view() : all.back().key);
    if (!change) return false;
    all.push_back(*change);
  }
  for (const Change& change : all | std::views::reverse) {
    const Place place{change.key, change.piece};
    std::optional<Bytes> bytes;
    if (change.before == Before::whole) bytes.emplace(change.bytes.begin(), change.bytes.end());
    if (change.before == Before::delta) {
      const Bytes* const after = pieceAt(place, pieces);
      if (after != nullptr) bytes = earlierOf(*after, change.bytes);
      if (!bytes) return false;
    }
    pieces.insert_or_assign(place, Earlier{.shape = change.shape, .bytes = std::move(bytes)});
  }
  return true;
}

bool WeekHistory::undoRecord(std::span<const std::byte> record, Pieces& pieces) const {
  if (!record.empty() && record.front() == recordMark) {
    std::span<const std::byte> changes = record.subspan(1);
    const auto sum = takeNumber(changes);
    return sum == checksumOf(changes) && undo(changes, pieces);
  }
  const auto read = plist::read(record);
  const auto* const values = read ? read->as<plist::Array>() : nullptr;
  if (values == nullptr || values->size() % valuesOfPiece != 0) return false;
  for (std::size_t at = 0; at < values->size(); at += valuesOfPiece) {
    const auto* const key = (*values)[at].as<std::string>();
    const auto* const piece = (*values)[at + 1].as<std::int64_t>();
    const auto* const number = (*values)[at + 2].as<std::int64_t>();
    const auto* const bytes = (*values)[at + 3].as<plist::Data>();
    const auto shape = number == nullptr ? std::nullopt : shapeAt(*number);
    if (key == nullptr || piece == nullptr || !shape || bytes == nullptr) return false;
    pieces.insert_or_assign(
        {*key, *piece},
        Earlier{.shape = *shape, .bytes = bytes->bytes.empty() ? std::nullopt : std::optional(bytes->bytes)});
  }
  return true;
}

// The piece in `pieces`, or else the stored one; null when there is none.
const Bytes* WeekHistory::pieceAt(const Place& place, const Pieces& pieces) const {
  if (const auto at = pieces.find(place); at != pieces.end()) {
    return at->second.bytes ? &*at->second.bytes : nullptr;
  }
  const SaveStore::Entry* const stored = store_.entry(place.first);
  if (stored == nullptr || !stored->pieces.contains(place.second)) return nullptr;
  return &stored->pieces.at(place.second);
}

// What the open journal and the changes after its last record change, as it was before; nothing when the
// journal is damaged.
std::optional<WeekHistory::Pieces> WeekHistory::read(const Journals& journals) const {
  Pieces pieces;
  if (!undo(noted_, pieces)) return std::nullopt;
  const SaveStore::Entry* const stored = store_.entry(journals.keys.back());
  if (stored == nullptr) return pieces;
  for (const Bytes& record : stored->pieces | std::views::values | std::views::reverse) {
    if (!undoRecord(record, pieces)) return std::nullopt;
  }
  return pieces;
}

std::optional<plist::Value> WeekHistory::valueIn(const Journals& journals, std::string_view key) const {
  if (journals.keys.empty()) return std::nullopt;
  const auto pieces = read(journals);
  if (!pieces) return std::nullopt;
  const auto place = pieces->find({std::string(key), 0});
  if (place == pieces->end()) return store_.value(key);
  if (!place->second.bytes) return std::nullopt;
  auto value = plist::read(*place->second.bytes);
  return value ? std::optional(*std::move(value)) : std::nullopt;
}

// All pieces of a key had the same shape: that of those which there were.
void WeekHistory::restore(Pieces pieces) {
  for (auto at = pieces.begin(); at != pieces.end();) {
    const std::string& key = at->first.first;
    const SaveStore::Entry* const stored = store_.entry(key);
    Shape shape = stored != nullptr ? stored->shape : at->second.shape;
    std::vector<SaveStore::PieceWrite> writes;
    for (; at != pieces.end() && at->first.first == key; ++at) {
      if (at->second.bytes) shape = at->second.shape;
      writes.push_back({.piece = at->first.second, .bytes = std::move(at->second.bytes)});
    }
    store_.putPieces(key, shape, false, std::move(writes));
  }
}

}  // namespace tb
