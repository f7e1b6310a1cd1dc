#pragma once

// XML property lists, as other programs write them. The game writes binary ones only.

#include <expected>
#include <span>

#include "core/property_list.h"

namespace tb::plist {

// Whether the file is to be read as XML.
[[nodiscard]] bool isXml(std::span<const std::byte> file);

// The file must be UTF-8. Like read(), it trusts nothing in the file: the result takes at most a few times
// the memory of the file.
[[nodiscard]] std::expected<Value, ReadError> readXml(std::span<const std::byte> file);

// A file with a duplicate key in a dictionary is ambiguous and no writer produces one, so readers reject it.
[[nodiscard]] bool namesAKeyTwice(const Dictionary& dictionary);

}  // namespace tb::plist
