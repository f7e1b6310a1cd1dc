#include "core/save_store.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

namespace tb {

namespace {

// The pieces of a list as one array; nothing when one of them does not decode.
std::optional<plist::Array> joined(const SaveStore::Entry& entry) {
  plist::Array all;
  for (const Bytes& bytes : entry.pieces | std::views::values) {
    auto piece = plist::read(bytes);
    auto* elements = piece ? std::get_if<plist::Array>(&piece->held) : nullptr;
    if (elements == nullptr) return std::nullopt;
    std::ranges::move(*elements, std::back_inserter(all));
  }
  return all;
}

}  // namespace

SaveStore::SaveStore(StorePort& port) : port_(port) {
  std::set<std::string, std::less<>> mixed;
  for (StoredPiece& stored : port_.load()) {
    const auto [at, added] = entries_.try_emplace(stored.key, Entry{.shape = stored.shape, .pieces = {}});
    if (at->second.shape == stored.shape) {
      at->second.pieces.insert_or_assign(stored.piece, std::move(stored.bytes));
    } else {
      mixed.insert(stored.key);
      addAside(std::move(stored));
    }
  }
  for (const std::string& key : mixed) {
    keepAside(key);
    remove(key);
  }
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
  auto elements = joined(*stored);
  if (!elements) return std::nullopt;
  plist::Value list{*std::move(elements)};
  if (stored->shape == Shape::plainList) return list;
  return plist::Value{plist::Data{plist::write(list)}};
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
  for (const auto& [piece, bytes] : stored->pieces) addAside({std::string(key), stored->shape, piece, bytes});
}

plist::Dictionary SaveStore::dictionary() const {
  plist::Dictionary all;
  for (const std::string& key : entries_ | std::views::keys) {
    if (auto held = value(key)) all.emplace_back(key, *std::move(held));
  }
  return all;
}

void SaveStore::replace(const plist::Dictionary& values) {
  for (const std::string& key : entries_ | std::views::keys) {
    if (!value(key)) keepAside(key);
  }
  entries_.clear();
  waiting_.clear();
  drops_all_ = true;
  for (const auto& [key, value] : values) put(key, value);
}

std::expected<void, std::string> SaveStore::commit() {
  if (!hasUncommitted()) return {};
  if (auto done = port_.commit(uncommitted()); !done) return done;
  drops_all_ = false;
  waiting_.clear();
  aside_.clear();
  return {};
}

// A piece that already holds these bytes costs nothing.
void SaveStore::setPiece(std::string_view key, Entry& entry, std::int64_t piece, Bytes bytes) {
  const auto [at, added] = entry.pieces.try_emplace(piece);
  if (!added && at->second == bytes) return;
  at->second = std::move(bytes);
  waitingFor(key).pieces.insert(piece);
}

void SaveStore::dropPiece(std::string_view key, Entry& entry, std::int64_t piece) {
  if (entry.pieces.erase(piece) > 0) waitingFor(key).pieces.insert(piece);
}

void SaveStore::dropKey(std::string_view key, Entry& entry) {
  entry.pieces.clear();
  waitingFor(key) = {.dropsKey = true, .pieces = {}};
}

// The same piece is found unreadable at every load until it is written over: it waits once.
void SaveStore::addAside(StoredPiece piece) {
  if (!std::ranges::contains(aside_, piece)) aside_.push_back(std::move(piece));
}

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
