#pragma once

// Binary property lists ("bplist00"): the game's only file format. Saves, slots, backups and exported files
// are property lists, so any other reader of the format opens them.
//
// The reader gets untrusted files. It bounds depth, sizes, offsets and total work, checks every count, and
// returns a ReadError for a bad file; it never crashes, and never allocates more than 64 times the size of
// the file plus 16 MiB (property_list_objects.h says why).

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
  // The game has no integers above the signed 64-bit range; the reader rejects them.
  using Variant = std::variant<bool, std::int64_t, double, std::string, Data, Date, Array, Dictionary>;
  Variant held;

  bool operator==(const Value&) const = default;

  template <class T>
  [[nodiscard]] const T* as() const {
    return std::get_if<T>(&held);
  }

  // The value of `key` if this is a dictionary that has it, else null.
  [[nodiscard]] const Value* find(std::string_view key) const;
};

enum class ReadError : std::uint8_t {
  notAPropertyList,  // no bplist00 header, or too short to hold a trailer
  badTrailer,        // sizes, counts or offsets in the trailer do not match the file
  badObject,         // an object runs past the end, has an unknown marker, or has a duplicate key
  badReference,      // a reference to a missing object, or a cycle of references
  badText,           // a string that is not ASCII or UTF-16, or a key that is not a string
  tooDeep,           // nested deeper than maximumDepth
  tooMuchWork,       // the values would take far more memory than the file
};

// The nesting depth of arrays and dictionaries, including the root.
inline constexpr std::size_t maximumDepth = 64;

// A plain sentence for the debug log.
[[nodiscard]] std::string_view describe(ReadError error);

[[nodiscard]] std::expected<Value, ReadError> read(std::span<const std::byte> file);

// The entries of the root dictionary with these keys, in the file's order. Decodes nothing else, so damage
// elsewhere in the file goes unnoticed.
[[nodiscard]] std::expected<Dictionary, ReadError> readEntries(std::span<const std::byte> file,
                                                               std::span<const std::string_view> keys);

// Always succeeds; text must be UTF-8 (ill-formed bytes are written as U+FFFD).
[[nodiscard]] Bytes write(const Value& root);

}  // namespace tb::plist
