#pragma once

// Columns: fields that change weekly even in old records, such as the popularity of each film.
//
// If such a field were saved in its record only, every week would rewrite the whole list. So it is listed in
// RECORD_COLUMNS and also stored in a column: an array of the values of 64 adjacent pieces of the list, with
// its own key. A piece keeps the values from when it was last written; the column replaces them when the list
// is loaded and in SaveStore::value(), so that a list looks like one property list with the current values
// from the outside.
//
// A stretch of a column is written with every change of its part of the list, in the same commit, so it has
// the same length. A stretch of another length is damaged and is ignored; then the values in the pieces are
// used.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/property_list.h"

namespace tb {

// The key of a list's column in the store.
[[nodiscard]] std::string columnKey(std::string_view list, std::string_view field);

// The stretch of a column that contains a piece: 64 pieces, so up to 512 elements. Part of the save format,
// so changing it needs a new schema version.
[[nodiscard]] constexpr std::int64_t stretchOf(std::int64_t piece) { return piece >> 6; }

// The part of a list that a stretch covers.
struct ListPart {
  std::size_t first = 0;
  std::size_t count = 0;
};
using Stretches = std::map<std::int64_t, ListPart>;

// Adds a piece of `count` elements. Pieces must be added in ascending order.
void addPiece(Stretches& stretches, std::int64_t piece, std::size_t first, std::size_t count);

// The values of a stored stretch, one per element of its part; nothing when it is damaged.
[[nodiscard]] std::optional<plist::Array> readStretch(std::span<const std::byte> stored,
                                                      const ListPart& part);

}  // namespace tb
