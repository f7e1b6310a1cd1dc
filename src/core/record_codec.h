#pragma once

// Lists of records and of plain values to and from binary property lists, straight between the structs and
// the file: a list of a whole career is written in milliseconds.
//
// A list of records is an array of dictionaries, keyed by the names of the fields in their order. An optional
// field that is empty is left out; a nested record is a dictionary; a vector is an array. Reading, a key that
// no field has is passed over, and an optional field that is missing is empty. A list that lacks anything
// else, or holds a value of the wrong kind (value_conversion.h), is refused as a whole.

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
    unreadable,    // `readError` says why
    missingField,  // a record without `field`
    wrongKind,     // `field` is of another kind; with no field, the list or one of its elements is
  };
  Kind kind = Kind::unreadable;
  plist::ReadError readError = plist::ReadError::notAPropertyList;
  std::string_view field;

  bool operator==(const DecodeError&) const = default;
};

// A plain sentence for the debug log.
[[nodiscard]] std::string describe(const DecodeError& error);

// Encodes a list element by element.
class ListEncoder {
 public:
  // `element` is of the described type.
  void add(const ValueType& type, const void* element) { writer_.putAside(write(type, element)); }

  // The binary property list: one array. The encoder is good for nothing more.
  [[nodiscard]] Bytes finish() { return writer_.finish(writer_.array(0)); }

 private:
  using Reference = plist::Writer::Reference;

  Reference write(const ValueType& type, const void* value);
  Reference writeList(const ValueType& type, const void* list);
  Reference writeRecord(const ValueType& type, const std::byte* record);

  // The objects of a record's keys; good until the next call.
  [[nodiscard]] std::span<const Reference> keysOf(const ValueType& type);

  struct Keys {
    const ValueType* type;
    std::vector<Reference> references;
  };

  plist::Writer writer_;
  std::vector<Keys> keys_;
};

// Decodes the elements of a list, each into what `append(list)` makes for it: a new element of the described
// type. What was appended before an error stays.
[[nodiscard]] std::expected<void, DecodeError> decodeList(std::span<const std::byte> file,
                                                          const ValueType& type, void* (*append)(void* list),
                                                          void* list);

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
