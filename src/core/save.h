#pragma once

// Writing variables through to the store, and reading them back. The one way to do either.
//
// Encoding can't fail: every type of the state has its form in the property list, text that is no UTF-8
// included. What is written is therefore always stored, and the previous value never has to stand in for it.

#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/debug_log.h"
#include "core/game.h"
#include "core/record_codec.h"
#include "core/value_conversion.h"

namespace tb {

// Writes the named variables to the store at once:
//
//   save<&WorldState::totalFans, &WorldState::trackFans>(game);
//
// Lists write their changed pieces only. Durable at the end of the player's action (SaveStore::commit).
template <auto... Members>
void save(Game& game);

// Reads the named variables back. A key that is missing, a value of another type and data that does not
// decode leave the variable as it is; what is there and is not understood is kept aside in the store, so that
// nothing is lost when the variable is written again.
template <auto... Members>
void load(Game& game);

namespace detail {

template <class T>
inline constexpr Shape shapeOf = RecordType<T> ? Shape::recordList : Shape::plainList;

template <class T>
Bytes encodePiece(const List<T>& list, std::size_t first, std::size_t count) {
  const auto begin = list.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = begin + static_cast<std::ptrdiff_t>(count);
  if constexpr (RecordType<T>) {
    return encodeRecords<T>(begin, end);
  } else {
    return encodeValues<T>(begin, end);
  }
}

template <class T>
std::expected<std::vector<T>, DecodeError> decodePiece(std::span<const std::byte> bytes) {
  if constexpr (RecordType<T>) {
    return decodeRecords<T>(bytes);
  } else {
    return decodeValues<T>(bytes);
  }
}

template <class T>
void saveVariable(SaveStore& store, std::string_view key, const T& variable) {
  store.put(key, toValue(variable));
}

template <class T>
void saveVariable(SaveStore& store, std::string_view key, List<T>& list) {
  // Changes can only be added to pieces that are there.
  const SaveStore::Entry* const stored = store.entry(key);
  if (stored == nullptr || stored->shape != shapeOf<T>) list.saveWhole();
  const auto changes = list.changes();
  std::vector<SaveStore::PieceWrite> writes;
  if (list.empty()) {
    // An empty list is one empty piece, so that the key is there.
    if (!list.replacesStored() && changes.empty()) return;
    writes.push_back({.piece = 0, .bytes = encodePiece(list, 0, 0)});
    store.putPieces(key, shapeOf<T>, true, std::move(writes));
  } else {
    for (const auto& change : changes) {
      writes.push_back({.piece = change.piece, .bytes = std::nullopt});
      if (change.count > 0) writes.back().bytes = encodePiece(list, change.first, change.count);
    }
    store.putPieces(key, shapeOf<T>, list.replacesStored(), std::move(writes));
  }
  list.changesSaved();
}

// What a load answers: nothing, or why the variable stays as it was, for the debug log.
using LoadFailure = std::optional<std::string>;

inline constexpr const char* otherKind = "The stored value is of another kind.";

// Takes the pieces over as they are stored, all or none.
template <class T>
LoadFailure loadPieces(const SaveStore::Entry& stored, List<T>& list) {
  std::vector<std::pair<std::int64_t, std::vector<T>>> pieces;
  for (const auto& [number, bytes] : stored.pieces) {
    auto elements = decodePiece<T>(bytes);
    if (!elements) return describe(elements.error());
    pieces.emplace_back(number, *std::move(elements));
  }
  list.startLoading();
  for (auto& [number, elements] : pieces) list.loadPiece(number, std::move(elements));
  return std::nullopt;
}

// A list as an import leaves it, in one plain value: records in a Data, plain values in an array. It has no
// pieces yet, so its next save writes all of it.
template <class T>
LoadFailure loadImported(const Bytes& stored, List<T>& list) {
  if constexpr (RecordType<T>) {
    const auto value = plist::read(stored);
    if (!value) return std::string(plist::describe(value.error()));
    const auto* const data = value->template as<plist::Data>();
    if (data == nullptr) return otherKind;
    auto elements = decodePiece<T>(data->bytes);
    if (!elements) return describe(elements.error());
    list.assign(*std::move(elements));
  } else {
    auto elements = decodePiece<T>(stored);
    if (!elements) return describe(elements.error());
    list.assign(*std::move(elements));
  }
  return std::nullopt;
}

template <class T>
LoadFailure loadStored(const SaveStore::Entry& stored, List<T>& list) {
  LoadFailure failure = otherKind;
  if (stored.shape == shapeOf<T>) failure = loadPieces(stored, list);
  if (stored.shape == Shape::plain) failure = loadImported(stored.pieces.begin()->second, list);
  if (failure) list.saveWhole();  // its next save can't add to what can't be read
  return failure;
}

template <class T>
LoadFailure loadStored(const SaveStore::Entry& stored, T& variable) {
  if (stored.shape != Shape::plain) return otherKind;
  const auto held = plist::read(stored.pieces.begin()->second);
  if (!held) return std::string(plist::describe(held.error()));
  auto value = valueAs<T>(*held);
  if (!value) return otherKind;
  variable = *std::move(value);
  return std::nullopt;
}

// Nothing that a player wrote is lost because this build can't read it.
template <class T>
void loadVariable(SaveStore& store, std::string_view key, T& variable) {
  const SaveStore::Entry* const stored = store.entry(key);
  if (stored == nullptr) return;
  const LoadFailure failure = loadStored(*stored, variable);
  if (!failure) return;
  store.keepAside(key);
  debugLog(std::string(key) + ": " + *failure);
}

}  // namespace detail

template <auto... Members>
void save(Game& game) {
  static_assert((!keyOf<Members>.empty() && ...), "a run-time variable is never saved");
  (detail::saveVariable(game.store, keyOf<Members>, game.world.*Members), ...);
}

template <auto... Members>
void load(Game& game) {
  static_assert((!keyOf<Members>.empty() && ...), "a run-time variable is never saved");
  (detail::loadVariable(game.store, keyOf<Members>, game.world.*Members), ...);
}

}  // namespace tb
