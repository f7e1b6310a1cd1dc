#pragma once

// Encodes lists of records and of plain values as binary property lists and decodes them, without
// intermediate values: the longest list of a career takes milliseconds.
//
// A list of records is an array of dictionaries with the field names as keys, in order. An empty optional
// field is omitted; a nested record is a dictionary; a vector is an array. When decoding, unknown keys are
// ignored, and a missing field keeps its start value, so that a field can be added to a record. An element
// with a value of the wrong type (value_conversion.h) is unread, and the others of its list are read.

#include <cstddef>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/property_list.h"
#include "core/property_list_objects.h"
#include "core/property_list_writer.h"
#include "core/record_fields.h"
#include "core/value_conversion.h"
#include "core/value_type.h"

namespace tb {

struct DecodeError {
  enum class Kind : std::uint8_t {
    unreadable,  // `readError` says why
    wrongKind,   // `field` has another type; without a field, the list or an element has
  };
  Kind kind = Kind::unreadable;
  plist::ReadError readError = plist::ReadError::notAPropertyList;
  std::string_view field;

  bool operator==(const DecodeError&) const = default;
};

// A sentence for the debug log.
[[nodiscard]] std::string describe(const DecodeError& error);

// Encodes a list element by element.
class ListEncoder {
 public:
  // `element` is of the described type.
  void add(const ValueType& type, const void* element) { writer_.putAside(write(type, element)); }

  // Returns the binary property list, an array. The encoder must not be used afterwards.
  [[nodiscard]] Bytes finish() { return writer_.finish(writer_.array(0)); }

 private:
  using Reference = plist::Writer::Reference;

  Reference write(const ValueType& type, const void* value);
  Reference writeList(const ValueType& type, const void* list);
  Reference writeRecord(const ValueType& type, const std::byte* record);

  // The objects of a record's keys; valid until the next call.
  [[nodiscard]] std::span<const Reference> keysOf(const ValueType& type);

  struct Keys {
    const ValueType* type;
    std::vector<Reference> references;
  };

  plist::Writer writer_;
  std::vector<Keys> keys_;
};

// An element that can't be decoded.
struct UnreadElement {
  std::size_t index;  // in the file's list
  DecodeError why;
};

// Decodes the elements of a list. `append(list)` adds a new element of the described type for each, also for
// an unread one, whose value then has no meaning. The error is about the list as a whole.
[[nodiscard]] std::expected<std::vector<UnreadElement>, DecodeError> decodeList(
    std::span<const std::byte> file, const ValueType& type, void* (*append)(void* list), void* list);

// The number of elements in an encoded list; 0 if it can't be decoded.
[[nodiscard]] std::size_t elementsIn(std::span<const std::byte> file);

namespace detail {

template <class T, class Iterator>
Bytes encodeList(Iterator first, Iterator last) {
  ListEncoder encoder;
  for (; first != last; ++first) {
    const T& element = *first;
    encoder.add(typeOf<T>, &element);
  }
  return encoder.finish();
}

template <class T>
std::expected<std::vector<T>, DecodeError> decodeVector(std::span<const std::byte> file) {
  std::vector<T> elements;
  const auto decoded = decodeList(file, typeOf<T>, vectorElements<T>.append, &elements);
  if (!decoded) return std::unexpected(decoded.error());
  if (!decoded->empty()) return std::unexpected(decoded->front().why);
  return elements;
}

}  // namespace detail

template <RecordType Record, class Iterator>
[[nodiscard]] Bytes encodeRecords(Iterator first, Iterator last) {
  return detail::encodeList<Record>(first, last);
}

template <RecordType Record>
[[nodiscard]] std::expected<std::vector<Record>, DecodeError> decodeRecords(std::span<const std::byte> file) {
  return detail::decodeVector<Record>(file);
}

template <PlainType T, class Iterator>
[[nodiscard]] Bytes encodeValues(Iterator first, Iterator last) {
  return detail::encodeList<T>(first, last);
}

template <PlainType T>
[[nodiscard]] std::expected<std::vector<T>, DecodeError> decodeValues(std::span<const std::byte> file) {
  return detail::decodeVector<T>(file);
}

}  // namespace tb
