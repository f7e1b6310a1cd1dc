#pragma once

// Finds a record of a list by the value of a field. The result is an index, or nothing.

#include <cstddef>
#include <cstdint>
#include <optional>

#include "core/list.h"

namespace tb {

// The index of the first record whose field has this value; nothing when there is none.
template <class Record, class Field, class Value>
[[nodiscard]] std::optional<std::size_t> find(const List<Record>& list, Field Record::* field,
                                              const Value& value) {
  for (std::size_t index = 0; index < list.size(); ++index) {
    if (list[index].*field == value) return index;
  }
  return std::nullopt;
}

// The same for an id field, which must not change while its record is in the list. Lists keep an index of
// ids, because a career has thousands of titles and tens of thousands of market records.
template <class Record>
[[nodiscard]] std::optional<std::size_t> find(const List<Record>& list, std::int64_t Record::* id,
                                              std::int64_t value) {
  if (list.empty()) return std::nullopt;
  return list.firstWithId(offsetOf(list.front(), id), value);
}

// Calls visit(index) for every record with this id, front to back. `visit` may edit records but must not add
// or erase any.
template <class Record, class Visit>
void forEachWith(const List<Record>& list, std::int64_t Record::* id, std::int64_t value, Visit visit) {
  if (list.empty()) return;
  const std::size_t field = offsetOf(list.front(), id);
  for (auto at = list.firstWithId(field, value); at; at = list.nextWithId(field, *at)) visit(*at);
}

}  // namespace tb
