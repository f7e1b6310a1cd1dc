#pragma once

// Columns: fields that change every week in records that are years old, such as the popularity of each film.
//
// If only records were saved, such a field would make every week write all of its list anew. It is named
// beside its record's fields (RECORD_COLUMNS) and stored once more in a column: the values of 64 neighboring
// pieces of the list in one array, under a key of its own. A piece keeps the values of the day on which it
// was last written; the column is laid over them, by the load and whenever the store is asked for the list,
// so that a list is one property list with today's values for everybody else.
//
// A stretch of a column is written with every change of its part of the list, in the same commit, and is
// therefore as long as that part. One that is not is damaged and is passed over: the values of the pieces
// stand.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/property_list.h"

namespace tb {

// The key that a list's column is stored under.
[[nodiscard]] std::string columnKey(std::string_view list, std::string_view field);

// Which stretch of the columns a piece is in: 64 pieces, so up to 512 elements. Saves are stored by it, so
// another length is another schema.
[[nodiscard]] constexpr std::int64_t stretchOf(std::int64_t piece) { return piece >> 6; }

// The part of a list that a stretch covers, by its number.
struct ListPart {
  std::size_t first = 0;
  std::size_t count = 0;
};
using Stretches = std::map<std::int64_t, ListPart>;

// Adds a piece of `count` elements behind those that were added before; pieces come in rising order.
void addPiece(Stretches& stretches, std::int64_t piece, std::size_t first, std::size_t count);

// The values of a stored stretch, one for each element of its part of the list; nothing when it is damaged.
[[nodiscard]] std::optional<plist::Array> readStretch(std::span<const std::byte> stored,
                                                      const ListPart& part);

}  // namespace tb
