#pragma once

// Lists of records and of plain values to and from binary property lists, straight between the structs and
// the file: a list of a whole career is written in milliseconds.
//
// A list of records is an array of dictionaries, keyed by the names of the fields in their order. An optional
// field that is empty is left out; a nested record is a dictionary; a vector is an array. Reading, a key that
// no field has is passed over, and an optional field that is missing is empty. A list that lacks anything
// else, or holds a value of the wrong kind (value_conversion.h), is refused as a whole.

#include <array>
#include <cstddef>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/property_list.h"
#include "core/property_list_objects.h"
#include "core/property_list_writer.h"
#include "core/records/fields.h"
#include "core/value_conversion.h"

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

namespace detail {

template <RecordType Record>
inline constexpr auto fieldNames =
    std::apply([](const auto&... field) { return std::array{field.name...}; }, fieldsOf<Record>);

class ListEncoder {
 public:
  template <class T, class Iterator>
  [[nodiscard]] Bytes list(Iterator first, Iterator last) {
    const std::size_t mark = writer_.mark();
    for (; first != last; ++first) {
      const T& element = *first;
      writer_.putAside(add(element));
    }
    return writer_.finish(writer_.array(mark));
  }

 private:
  using Reference = plist::Writer::Reference;

  Reference add(bool value) { return writer_.boolean(value); }
  Reference add(std::int64_t value) { return writer_.integer(value); }
  Reference add(double value) { return writer_.real(value); }
  Reference add(const std::string& value) { return writer_.text(value); }
  Reference add(const plist::Data& value) { return writer_.data(value.bytes); }
  Reference add(plist::Date value) { return writer_.date(value); }

  template <class T>
  Reference add(const std::vector<T>& elements) {
    const std::size_t mark = writer_.mark();
    for (const T& element : elements) writer_.putAside(add(element));
    return writer_.array(mark);
  }

  template <RecordType Record>
  Reference add(const Record& record) {
    const std::size_t mark = writer_.mark();
    auto key = keys(fieldNames<Record>).begin();
    forEachField(record, [&](std::string_view, const auto& field) {
      if (isPresent(field)) writer_.putAside(*key);
      ++key;
    });
    forEachField(record, [&](std::string_view, const auto& field) {
      if (isPresent(field)) writer_.putAside(add(contentOf(field)));
    });
    return writer_.dictionary(mark);
  }

  template <class T>
  static bool isPresent(const T&) {
    return true;
  }
  template <class T>
  static bool isPresent(const std::optional<T>& field) {
    return field.has_value();
  }
  template <class T>
  static const T& contentOf(const T& field) {
    return field;
  }
  template <class T>
  static const T& contentOf(const std::optional<T>& field) {
    return *field;
  }

  // The objects of a record's keys; good until the next call.
  [[nodiscard]] std::span<const Reference> keys(std::span<const std::string_view> names);

  struct Keys {
    const std::string_view* names;  // one array a record, so its address tells the records apart
    std::vector<Reference> references;
  };

  plist::Writer writer_;
  std::vector<Keys> keys_;
};

class ListDecoder {
 public:
  template <class T>
  [[nodiscard]] static std::expected<std::vector<T>, DecodeError> list(std::span<const std::byte> file) {
    const auto objects = plist::Objects::open(file);
    if (!objects) return std::unexpected(DecodeError{DecodeError::Kind::unreadable, objects.error(), {}});
    ListDecoder decoder(*objects, file.size());
    std::vector<T> elements;
    if (!decoder.read(objects->root(), elements)) return std::unexpected(decoder.error_);
    return elements;
  }

 private:
  ListDecoder(const plist::Objects& objects, std::size_t fileSize) : objects_(objects), budget_(fileSize) {}

  // Which entry of a dictionary each field of a record is: the same for nearly every record of a list, so it
  // is found once and then known by the dictionary's key references.
  struct Layout {
    const std::string_view* names;
    std::span<const std::byte> keys;
    std::vector<std::size_t> entries;  // by field; absent where there is no such key
  };
  static constexpr std::size_t absent = ~std::size_t{0};

  // Each read() sets what it is given and answers true, or leaves why it could not in error_.

  template <NumberType T>
  bool read(plist::Reference reference, T& number) {
    plist::Object object;
    if (!take(reference, object)) return false;
    const auto converted = object.kind == plist::ObjectKind::integer   ? numberAs<T>(object.integer)
                           : object.kind == plist::ObjectKind::real    ? numberAs<T>(object.real)
                           : object.kind == plist::ObjectKind::boolean ? numberAs<T>(object.integer != 0)
                                                                       : std::nullopt;
    if (!converted) return wrongKind();
    number = *converted;
    return true;
  }
  bool read(plist::Reference reference, std::string& text);
  bool read(plist::Reference reference, plist::Data& data);
  bool read(plist::Reference reference, plist::Date& date);

  template <class T>
  bool read(plist::Reference reference, std::optional<T>& field) {
    return read(reference, field.emplace());
  }

  template <class T>
  bool read(plist::Reference reference, std::vector<T>& elements) {
    plist::Object array;
    if (!enter(reference, plist::ObjectKind::array, sizeof(T), array)) return false;
    elements.reserve(array.entries);
    for (std::size_t index = 0; index < array.entries; ++index) {
      T element{};
      if (!read(objects_.referenceAt(array.content, index), element)) return false;
      elements.push_back(std::move(element));
    }
    return leave();
  }

  template <RecordType Record>
  bool read(plist::Reference reference, Record& record) {
    constexpr auto& names = fieldNames<Record>;
    std::array<plist::Reference, names.size()> values;
    if (!enterRecord(reference, names, values)) return false;
    const plist::Reference* value = values.data();
    bool good = true;
    forEachField(
        record, [&](std::string_view name, auto& field) { good = good && readField(name, *value++, field); });
    return good && leave();
  }

  template <class T>
  bool readField(std::string_view name, plist::Reference value, T& field) {
    if (value == missing) return isOptional<T> || missingField(name);
    return read(value, field) || inField(name);
  }

  // In the place of a reference: the dictionary has no such key.
  static constexpr plist::Reference missing = ~plist::Reference{0};

  bool take(plist::Reference reference, plist::Object& object);
  bool enter(plist::Reference reference, plist::ObjectKind kind, std::size_t entrySize,
             plist::Object& object);
  bool leave();
  bool enterRecord(plist::Reference reference, std::span<const std::string_view> names,
                   std::span<plist::Reference> values);

  const Layout* layoutOf(const plist::Object& dictionary, std::span<const std::string_view> names);
  bool findFields(const plist::Object& dictionary, std::span<const std::string_view> names, Layout& layout);

  // These say why, and answer false.
  bool unreadable(plist::ReadError error);
  bool wrongKind();
  bool missingField(std::string_view name);
  bool inField(std::string_view name);

  const plist::Objects& objects_;
  plist::Budget budget_;
  std::size_t depth_ = 0;
  std::vector<Layout> layouts_;
  DecodeError error_;
};

}  // namespace detail

template <RecordType Record, class Iterator>
[[nodiscard]] Bytes encodeRecords(Iterator first, Iterator last) {
  return detail::ListEncoder().list<Record>(first, last);
}

template <RecordType Record>
[[nodiscard]] std::expected<std::vector<Record>, DecodeError> decodeRecords(std::span<const std::byte> file) {
  return detail::ListDecoder::list<Record>(file);
}

template <PlainType T, class Iterator>
[[nodiscard]] Bytes encodeValues(Iterator first, Iterator last) {
  return detail::ListEncoder().list<T>(first, last);
}

template <PlainType T>
[[nodiscard]] std::expected<std::vector<T>, DecodeError> decodeValues(std::span<const std::byte> file) {
  return detail::ListDecoder::list<T>(file);
}

}  // namespace tb
