#pragma once

// Binary property lists ("bplist00"): the one form in which the game's values leave memory. Saves, slots,
// backups and exported files all are property lists, so that any other reader of the format opens them.
//
// The reader faces files from outside. It bounds depth, sizes, offsets and the total work, trusts no count
// in the file, and answers a bad file with a ReadError; it never crashes and never makes more of a file than
// 64 times its size and 16 MiB (property_list_objects.h tells why).

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "core/plain_types.h"

namespace tb::plist {

struct Value;

using Array = std::vector<Value>;
using Dictionary = std::vector<std::pair<std::string, Value>>;  // in the order written; no key twice

struct Value {
  // Integers above the signed 64-bit range are outside the game's numbers; the reader refuses them.
  using Variant = std::variant<bool, std::int64_t, double, std::string, Data, Date, Array, Dictionary>;
  Variant held;

  bool operator==(const Value&) const = default;

  template <class T>
  [[nodiscard]] const T* as() const {
    return std::get_if<T>(&held);
  }

  // The value under `key` when this is a dictionary that has it, else null.
  [[nodiscard]] const Value* find(std::string_view key) const;
};

enum class ReadError : std::uint8_t {
  notAPropertyList,  // no bplist00 header, or too short to hold a trailer
  badTrailer,        // sizes, counts or offsets of the trailer do not fit the file
  badObject,         // an object runs past the end, has no known marker, or names a key twice
  badReference,      // a reference to no object, or a circle of references
  badText,           // a string that is no ASCII or UTF-16, or a key that is no string
  tooDeep,           // nested deeper than maximumDepth
  tooMuchWork,       // objects shared so often that reading them out would outgrow the file
};

// Arrays and dictionaries inside one another, the root counted.
inline constexpr std::size_t maximumDepth = 64;

// A plain sentence for the debug log.
[[nodiscard]] std::string_view describe(ReadError error);

[[nodiscard]] std::expected<Value, ReadError> read(std::span<const std::byte> file);

// Always succeeds; text must be UTF-8 (ill-formed bytes are written as U+FFFD).
[[nodiscard]] Bytes write(const Value& root);

}  // namespace tb::plist
