#pragma once

// Writing variables through to the store, and reading them back. The one way to do either.
//
// Encoding can't fail: every type of the state has its form in the property list, text that is no UTF-8
// included. What is written is therefore always stored, and the previous value never has to stand in for it.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/debug_log.h"
#include "core/game.h"
#include "core/record_codec.h"

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
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<List<T>> = true;

template <class T>
inline constexpr Shape shapeOf = RecordType<T> ? Shape::recordList : Shape::plainList;

template <class T>
Bytes encodePiece(const List<T>& list, std::size_t first, std::size_t count) {
  const auto begin = list.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = begin + static_cast<std::ptrdiff_t>(count);
  if constexpr (RecordType<T>) {
    return encodeRecords(piece);
  } else {
    return encodeValues(piece);
  }
}

template <class T>
auto decodePiece(std::span<const std::byte> bytes) {
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
  const SaveStore::Entry* const stored = store.entry(key);
  if (stored == nullptr || stored->shape != shapeOf<T>) list.saveWhole();  // no pieces there to add changes to
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

// The elements of a list as an import leaves it, in one plain value: records in a Data, plain values in an array.
template <class T>
std::optional<std::vector<T>> importedElements(const plist::Value& value) {
  if constexpr (RecordType<T>) {
    const auto* const data = value.as<plist::Data>();
    if (data == nullptr) return std::nullopt;
    auto elements = decodePiece<T>(data->bytes);
    if (!elements) return std::nullopt;
    return *std::move(elements);
  } else {
    if (!value.as<plist::Array>()) return std::nullopt;
    auto elements = decodePiece<T>(plist::write(value));
    if (!elements) return std::nullopt;
    return *std::move(elements);
  }
}

// Takes the pieces over as they are stored. False, and the list as it was, when one of them does not decode.
template <class T>
bool loadPieces(const SaveStore::Entry& stored, List<T>& list) {
  std::vector<std::pair<std::int64_t, std::vector<T>>> pieces;
  for (const auto& [number, bytes] : stored.pieces) {
    auto elements = decodePiece<T>(bytes);
    if (!elements) return false;
    pieces.emplace_back(number, *std::move(elements));
  }
  list.startLoading();
  for (auto& [number, elements] : pieces) list.loadPiece(number, std::move(elements));
  return true;
}

// Nothing that a player wrote is lost because this build can't read it.
inline void setAside(SaveStore& store, std::string_view key, std::string_view why) {
  store.keepAside(key);
  debugLog(std::string(key) + ": " + std::string(why));
}

template <class T>
void loadVariable(SaveStore& store, std::string_view key, T& variable) {
  if (!store.contains(key)) return;
  const auto stored = store.value(key);
  if (!stored) return setAside(store, key, "the stored value does not decode");
  auto value = valueAs<T>(*stored);
  if (!value) return setAside(store, key, "the stored value is of another type");
  variable = *std::move(value);
}

template <class T>
void loadVariable(SaveStore& store, std::string_view key, List<T>& list) {
  const SaveStore::Entry* const stored = store.entry(key);
  if (stored == nullptr) return;
  if (stored->shape == shapeOf<T>) {
    if (loadPieces(*stored, list)) return;
  } else if (const auto value = store.value(key)) {
    if (auto elements = importedElements<T>(*value)) return list.assign(*std::move(elements));
  }
  setAside(store, key, "the stored list does not decode");
  list.saveWhole();
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
