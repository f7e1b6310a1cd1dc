#pragma once

// Values of a save as a dictionary.

#include <algorithm>
#include <string_view>

#include "core/property_list.h"
#include "core/value_conversion.h"

namespace tb {

// The value of a key; T{} when there is none or it has another type.
template <PlainType T>
[[nodiscard]] T storedValue(const plist::Dictionary& values, std::string_view key) {
  const auto entry = std::ranges::find(values, key, &plist::Dictionary::value_type::first);
  return entry == values.end() ? T{} : valueAs<T>(entry->second).value_or(T{});
}

// Whether the save is of a career past the new-career form.
[[nodiscard]] inline bool hasBegun(const plist::Dictionary& values) {
  return storedValue<std::int64_t>(values, "enterPlayerDetails") != 0;
}

}  // namespace tb
