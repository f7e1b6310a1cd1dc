#pragma once

// The layout of a binary property list, for its reader and its writer.
//
//   "bplist00"
//   the objects          a marker byte (kind above, size or count below), then the content
//   the offset table     where each object stands in the file, by object number
//   the trailer          32 bytes: what sizes the two kinds of number have, and where the table stands
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
  integerMarker = 0x10,  // below: 2^n bytes; 1, 2 and 4 unsigned, 8 and 16 signed
  realMarker = 0x20,     // below: 2^n bytes, 4 or 8
  dateMarker = 0x33,     // a real of 8 bytes
  dataMarker = 0x40,     // below, here and on: the count, or countFollows and then an integer object
  asciiMarker = 0x50,    // counts bytes
  utf16Marker = 0x60,    // counts units of 2 bytes
  arrayMarker = 0xA0,
  dictionaryMarker = 0xD0,  // counts pairs: all key references, then all value references
};
inline constexpr std::uint8_t countFollows = 0x0F;

// Where the trailer's fields stand, from its first byte. What comes before them is not used.
inline constexpr std::size_t trailerSize = 32;
inline constexpr std::size_t offsetSizeAt = 6;
inline constexpr std::size_t referenceSizeAt = 7;
inline constexpr std::size_t objectCountAt = 8;
inline constexpr std::size_t rootAt = 16;
inline constexpr std::size_t offsetTableAt = 24;

}  // namespace tb::plist::format
