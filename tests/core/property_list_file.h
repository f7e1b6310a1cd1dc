#pragma once

// Builds property-list files that no writer would produce.

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/property_list.h"

namespace tb::test {

struct HandMadeFile {
  std::vector<std::string> objects;  // marker and content; the first is the root
  std::size_t offsetSize = 2;
  std::size_t referenceSize = 1;
  std::uint64_t root = 0;

  [[nodiscard]] Bytes bytes() const {
    std::string file = "bplist00";
    std::vector<std::size_t> offsets;
    for (const std::string& object : objects) {
      offsets.push_back(file.size());
      file += object;
    }
    const std::size_t table = file.size();
    for (const std::size_t offset : offsets) file += number(offset, offsetSize);
    file += std::string(6, '\0') + static_cast<char>(offsetSize) + static_cast<char>(referenceSize);
    file += number(objects.size(), 8) + number(root, 8) + number(table, 8);
    return toBytes(file);
  }

  [[nodiscard]] static std::string number(std::uint64_t value, std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t at = size; at-- > 0; value >>= 8) bytes[at] = static_cast<char>(value & 0xFF);
    return bytes;
  }

  [[nodiscard]] static Bytes toBytes(std::string_view text) {
    const auto* first = reinterpret_cast<const std::byte*>(text.data());
    return Bytes(first, first + text.size());
  }
};

// The bytes of an object, from numbers.
inline std::string object(std::initializer_list<int> bytes) {
  std::string object;
  for (const int byte : bytes) object.push_back(static_cast<char>(byte));
  return object;
}

}  // namespace tb::test
