#pragma once

// Brings loaded values into the range that the rules rely on (core/range.h).

#include <cstddef>

#include "core/value_type.h"

namespace tb {

struct Mending {
  std::size_t mended = 0;  // numbers, texts and lists that were brought to the nearest lawful value
  bool isPossible = true;  // false: a record is of an unknown kind and can't be used
};

// `value` is of the described type, and `range` that of its variable or field.
Mending makeLawful(const ValueType& type, const Range& range, void* value);

// A number that is no number becomes the lawful one nearest to 0.
[[nodiscard]] double nearestLawful(const Range& range, double number);

// The length of the longest part of the text that is not longer than `length` and has no cut character.
[[nodiscard]] std::size_t lengthWithin(std::string_view text, std::size_t length);

}  // namespace tb
