#include "core/save_store.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

namespace tb {

namespace {

struct JoinedList {
  plist::Array elements;
  Stretches stretches;
  std::size_t unread = 0;  // pieces that can't be decoded
};

// The pieces of a list as one array; nothing when no piece can be decoded.
std::optional<JoinedList> joined(const SaveStore::Entry& entry) {
  JoinedList all;
  for (const auto& [number, bytes] : entry.pieces) {
    auto piece = plist::read(bytes);
    auto* elements = piece ? std::get_if<plist::Array>(&piece->held) : nullptr;
    if (elements == nullptr) {
      all.unread += 1;
      continue;
    }
    addPiece(all.stretches, number, all.elements.size(), elements->size());
    std::ranges::move(*elements, std::back_inserter(all.elements));
  }
  if (all.unread == entry.pieces.size()) return std::nullopt;
  return all;
}

// Whether all pieces of a value can be decoded.
bool isSound(const SaveStore::Entry& entry) {
  if (entry.shape == Shape::plain) return plist::read(entry.pieces.begin()->second).has_value();
  const auto all = joined(entry);
  return all && all->unread == 0;
}

// A column or a journal has no value of its own.
bool isUnreadable(const SaveStore::Entry& entry) {
  return entry.shape != Shape::column && entry.shape != Shape::journal && !isSound(entry);
}

// Sets the field of a record if its value has the same kind.
void setField(plist::Value& record, std::string_view field, plist::Value value) {
  auto* const fields = std::get_if<plist::Dictionary>(&record.held);
  if (fields == nullptr) return;
  const auto at = std::ranges::find(*fields, field, &std::pair<std::string, plist::Value>::first);
  if (at == fields->end() || at->second.held.index() != value.held.index()) return;
  at->second = std::move(value);
}

}  // namespace

SaveStore::SaveStore(StorePort& port) : port_(port) {
  std::vector<StoredPiece> all = port_.load();
  std::map<std::string, std::map<Shape, std::size_t>, std::less<>> shapes;
  for (const StoredPiece& stored : all) shapes[stored.key][stored.shape] += 1;
  for (StoredPiece& stored : all) {
    const auto& counts = shapes.find(stored.key)->second;
    const Shape shape =
        std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; })->first;
    Entry& entry = entries_.try_emplace(stored.key, Entry{.shape = shape, .pieces = {}}).first->second;
    Bytes& bytes = entry.pieces[stored.piece];
    if (stored.shape == shape) {
      bytes = std::move(stored.bytes);
    } else {
      addAside(std::move(stored));
    }
  }
  weeks_.load();
}

bool SaveStore::contains(std::string_view key) const { return entries_.contains(key); }

std::optional<plist::Value> SaveStore::value(std::string_view key) const {
  const Entry* const stored = entry(key);
  if (stored == nullptr) return std::nullopt;
  if (stored->shape == Shape::plain) {
    auto plain = plist::read(stored->pieces.begin()->second);
    if (!plain) return std::nullopt;
    return *std::move(plain);
  }
  if (stored->shape == Shape::column || stored->shape == Shape::journal) return std::nullopt;
  auto all = joined(*stored);
  if (!all) return std::nullopt;
  if (stored->shape == Shape::recordList) layColumns(key, all->elements, all->stretches);
  plist::Value list{std::move(all->elements)};
  if (stored->shape == Shape::plainList) return list;
  return plist::Value{plist::Data{plist::write(list)}};
}

std::vector<std::string> SaveStore::keys(Shape shape, std::string_view prefix) const {
  std::vector<std::string> found;
  for (auto at = entries_.lower_bound(prefix); at != entries_.end() && at->first.starts_with(prefix); ++at) {
    if (at->second.shape == shape) found.push_back(at->first);
  }
  return found;
}

std::vector<std::string> SaveStore::columnsOf(std::string_view list) const {
  return keys(Shape::column, columnKey(list, ""));
}

void SaveStore::layColumns(std::string_view key, plist::Array& records, const Stretches& stretches) const {
  for (const std::string& column : columnsOf(key)) {
    const std::string_view field = std::string_view(column).substr(columnKey(key, "").size());
    for (const auto& [number, bytes] : entry(column)->pieces) {
      const auto part = stretches.find(number);
      if (part == stretches.end()) continue;
      auto values = readStretch(bytes, part->second);
      if (!values) continue;
      for (std::size_t index = 0; index < values->size(); ++index) {
        setField(records[part->second.first + index], field, std::move((*values)[index]));
      }
    }
  }
}

const SaveStore::Entry* SaveStore::entry(std::string_view key) const {
  const auto at = entries_.find(key);
  return at == entries_.end() ? nullptr : &at->second;
}

void SaveStore::put(std::string_view key, const plist::Value& value) {
  std::vector<PieceWrite> whole;
  whole.push_back({.piece = 0, .bytes = plist::write(value)});
  putPieces(key, Shape::plain, true, std::move(whole));
}

void SaveStore::remove(std::string_view key) {
  const auto at = entries_.find(key);
  if (at == entries_.end()) return;
  dropKey(key, at->second);
  entries_.erase(at);
}

void SaveStore::putPieces(std::string_view key, Shape shape, bool replace, std::vector<PieceWrite> writes) {
  const auto at = entries_.try_emplace(std::string(key)).first;
  Entry& entry = at->second;
  if (entry.shape != shape) {
    if (!entry.pieces.empty()) dropKey(key, entry);
    entry.shape = shape;
  }
  if (replace) {
    std::set<std::int64_t> gone;
    for (const std::int64_t piece : entry.pieces | std::views::keys) gone.insert(piece);
    for (const PieceWrite& write : writes) gone.erase(write.piece);
    for (const std::int64_t piece : gone) dropPiece(key, entry, piece);
  }
  for (PieceWrite& write : writes) {
    if (write.bytes) {
      setPiece(key, entry, write.piece, *std::move(write.bytes));
    } else {
      dropPiece(key, entry, write.piece);
    }
  }
  if (entry.pieces.empty()) entries_.erase(at);
}

void SaveStore::keepAside(std::string_view key) {
  const Entry* const stored = entry(key);
  if (stored == nullptr) return;
  for (const auto& [piece, bytes] : stored->pieces) keepAside(key, piece);
  for (const std::string& column : columnsOf(key)) keepAside(column);
}

void SaveStore::keepAside(std::string_view key, std::int64_t piece) {
  const Entry* const stored = entry(key);
  const auto at = stored->pieces.find(piece);
  addAside({std::string(key), stored->shape, piece, at->second});
}

plist::Dictionary SaveStore::dictionary() const {
  plist::Dictionary all;
  for (const std::string& key : entries_ | std::views::keys) {
    if (auto held = value(key)) all.emplace_back(key, *std::move(held));
  }
  return all;
}

void SaveStore::replace(const plist::Dictionary& values) {
  for (const auto& [key, entry] : entries_) {
    if (isUnreadable(entry)) keepAside(key);
  }
  weeks_.reset();
  entries_.clear();
  waiting_.clear();
  drops_all_ = true;
  for (const auto& [key, value] : values) put(key, value);
}

std::expected<void, std::string> SaveStore::commit() {
  weeks_.record();
  if (!hasUncommitted()) return {};
  if (auto done = port_.commit(uncommitted()); !done) return done;
  drops_all_ = false;
  waiting_.clear();
  aside_.clear();
  return {};
}

// Does nothing when the piece already has these bytes.
void SaveStore::setPiece(std::string_view key, Entry& entry, std::int64_t piece, Bytes bytes) {
  const auto [at, added] = entry.pieces.try_emplace(piece);
  if (!added && at->second == bytes) return;
  weeks_.note(key, entry.shape, piece, added ? nullptr : &at->second, &bytes);
  at->second = std::move(bytes);
  waitingFor(key).pieces.insert(piece);
}

void SaveStore::dropPiece(std::string_view key, Entry& entry, std::int64_t piece) {
  auto dropped = entry.pieces.extract(piece);
  if (dropped.empty()) return;
  weeks_.note(key, entry.shape, piece, &dropped.mapped(), nullptr);
  waitingFor(key).pieces.insert(piece);
}

void SaveStore::dropKey(std::string_view key, Entry& entry) {
  for (const auto& [piece, bytes] : entry.pieces) weeks_.note(key, entry.shape, piece, &bytes, nullptr);
  entry.pieces.clear();
  waitingFor(key) = {.dropsKey = true, .pieces = {}};
  for (const std::string& column : columnsOf(key)) remove(column);
}

// A piece is added only once, although every load finds it unreadable until it is overwritten.
void SaveStore::addAside(StoredPiece piece) { aside_.insert(std::move(piece)); }

SaveStore::Waiting& SaveStore::waitingFor(std::string_view key) {
  return waiting_.try_emplace(std::string(key)).first->second;
}

std::vector<StoreChange> SaveStore::uncommitted() const {
  using enum StoreChange::Kind;
  std::vector<StoreChange> changes;
  for (const StoredPiece& piece : aside_) changes.push_back({keepAside, piece});
  if (drops_all_) changes.push_back({.kind = dropAll, .stored = {}});
  for (const auto& [key, waiting] : waiting_) {
    if (waiting.dropsKey) changes.push_back({dropKey, {.key = key, .bytes = {}}});
    const Entry* const stored = entry(key);
    for (const std::int64_t piece : waiting.pieces) {
      if (stored != nullptr && stored->pieces.contains(piece)) {
        changes.push_back({put, {key, stored->shape, piece, stored->pieces.at(piece)}});
      } else {
        changes.push_back({drop, {.key = key, .piece = piece, .bytes = {}}});
      }
    }
  }
  return changes;
}

}  // namespace tb
