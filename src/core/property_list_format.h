#pragma once

// The layout of a binary property list, for the reader and the writer.
//
//   "bplist00"
//   the objects          a marker byte (kind in the high half, size or count in the low half), then the
//   content the offset table     the offset of each object in the file, by object number the trailer 32
//   bytes: the sizes of offsets and references, and the offset of the table
//
// Arrays and dictionaries hold object numbers ("references"). All numbers are big-endian.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tb::plist::format {

inline constexpr std::string_view header = "bplist00";

enum Marker : std::uint8_t {
  falseMarker = 0x08,
  trueMarker = 0x09,
  integerMarker = 0x10,  // low half: 2^n bytes; 1, 2 and 4 unsigned, 8 and 16 signed
  realMarker = 0x20,     // low half: 2^n bytes, 4 or 8
  dateMarker = 0x33,     // an 8-byte real
  dataMarker =
      0x40,  // low half, for this and the following: the count, or countFollows and an integer object
  asciiMarker = 0x50,  // counts bytes
  utf16Marker = 0x60,  // counts 2-byte units
  arrayMarker = 0xA0,
  dictionaryMarker = 0xD0,  // counts pairs: all key references, then all value references
};
inline constexpr std::uint8_t countFollows = 0x0F;

// Offsets of the trailer's fields from its first byte. The bytes before them are unused.
inline constexpr std::size_t trailerSize = 32;
inline constexpr std::size_t offsetSizeAt = 6;
inline constexpr std::size_t referenceSizeAt = 7;
inline constexpr std::size_t objectCountAt = 8;
inline constexpr std::size_t rootAt = 16;
inline constexpr std::size_t offsetTableAt = 24;

}  // namespace tb::plist::format
