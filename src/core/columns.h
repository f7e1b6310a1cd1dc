#pragma once

// Columns: number fields that change every week in old records, such as the popularity of each film.
//
// Without columns, each week would store all records of such a list again. A column field is named beside the
// fields of its record (RECORD_COLUMNS) and is also stored separately: one array holds the values for 64
// neighboring pieces of the list (a stretch), under a key of its own. A stored piece keeps the values from
// when it was last written; loading the list and SaveStore::value() replace them with those of the column.
//
// A stretch is stored in the same commit as every change in its part of the list, so it has one value for
// each element of that part. A stretch of another length is damaged and is ignored.

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

// The stretch that a piece belongs to. A stretch has 64 pieces, so up to 512 elements. A change of this
// number needs a new schema version.
[[nodiscard]] constexpr std::int64_t stretchOf(std::int64_t piece) { return piece >> 6; }

// The part of a list that a stretch covers, by its number.
struct ListPart {
  std::size_t first = 0;
  std::size_t count = 0;
};
using Stretches = std::map<std::int64_t, ListPart>;

// Adds a piece of `count` elements that starts at element `first`. Call in ascending order of pieces.
void addPiece(Stretches& stretches, std::int64_t piece, std::size_t first, std::size_t count);

// The values of a stored stretch, one for each element of `part`; nothing if the stretch is damaged.
[[nodiscard]] std::optional<plist::Array> readStretch(std::span<const std::byte> stored,
                                                      const ListPart& part);

}  // namespace tb
