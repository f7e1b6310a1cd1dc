#pragma once

// Reads a binary property list object by object. Nothing in the file is trusted: every size, count, offset
// and reference is checked before it is used.

#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>

#include "core/property_list.h"

namespace tb::plist {

// An object's number in the file; below Objects::count().
using Reference = std::uint64_t;

enum class ObjectKind : std::uint8_t {
  boolean,
  integer,
  real,
  date,
  data,
  asciiText,
  utf16Text,
  array,
  dictionary
};

struct Object {
  ObjectKind kind = ObjectKind::boolean;
  std::int64_t integer = 0;  // of a boolean (0 or 1) and an integer
  double real = 0;           // of a real and a date
  // The raw bytes of data and text; the references of an array or a dictionary (keys, then values).
  std::span<const std::byte> content;
  std::size_t entries = 0;  // elements of an array, pairs of a dictionary
};

class Objects {
 public:
  // `file` has to outlive the result.
  [[nodiscard]] static std::expected<Objects, ReadError> open(std::span<const std::byte> file);

  [[nodiscard]] Reference root() const { return root_; }

  // `reference` may be any number.
  [[nodiscard]] std::expected<Object, ReadError> object(Reference reference) const;

  // The value of an integer object of up to 8 bytes, and of an 8-byte real; nothing for any other object.
  // Like object(), but quicker: most objects of a save are numbers.
  [[nodiscard]] std::optional<std::int64_t> integerAt(Reference reference) const;
  [[nodiscard]] std::optional<double> realAt(Reference reference) const;

  // The reference at `index` of a container's content. It is not checked; object() does that.
  [[nodiscard]] Reference referenceAt(std::span<const std::byte> content, std::size_t index) const;

 private:
  Objects() = default;

  [[nodiscard]] const std::byte* markerOf(Reference reference) const;
  [[nodiscard]] std::expected<Object, ReadError> sized(ObjectKind kind, std::uint8_t low,
                                                       std::size_t at) const;

  std::span<const std::byte> objects_;  // header and objects: everything before the offset table
  std::span<const std::byte> offsets_;
  std::uint64_t count_ = 0;
  Reference root_ = 0;
  std::size_t offset_size_ = 0;
  std::size_t reference_size_ = 0;
};

// Limits the memory that one file may take, in bytes.
//
// An object can be referenced many times and each reference becomes a separate value in memory, so a small
// file can describe something huge. Genuine files stay far below the limit: 16 MiB alone allow 52,000 copies
// of a 300-character string that is one object in the file, and every reference raises the limit by at least
// 64 bytes.
class Budget {
 public:
  explicit Budget(std::size_t fileSize) : left_(smallFiles + timesFileSize * std::uint64_t{fileSize}) {}

  // False when `count` items of `size` bytes exceed what is left.
  [[nodiscard]] bool spend(std::uint64_t count, std::uint64_t size = 1) {
    if (count > left_ / size) return false;
    left_ -= count * size;
    return true;
  }

 private:
  static constexpr std::uint64_t smallFiles = std::uint64_t{16} << 20;
  static constexpr std::uint64_t timesFileSize = 64;

  std::uint64_t left_;
};

// The text of a text object in UTF-8; badText for other objects.
[[nodiscard]] std::expected<std::string, ReadError> textOf(const Object& object, Budget& budget);

}  // namespace tb::plist
