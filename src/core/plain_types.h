#pragma once

// The plain types of the state and its records that are not in the standard library.

#include <cstddef>
#include <vector>

namespace tb {

using Bytes = std::vector<std::byte>;

}  // namespace tb

namespace tb::plist {

// Raw bytes, such as a picture.
struct Data {
  Bytes bytes;
  bool operator==(const Data&) const = default;
};

// Seconds since 2001-01-01 00:00:00 UTC, the epoch of property lists.
struct Date {
  double seconds = 0;
  bool operator==(const Date&) const = default;
};

}  // namespace tb::plist
