#pragma once

// Run-time type descriptions for the save file. The encoder, the decoder, saving and loading are written once
// over these tables; as templates per type they were a third of the page's program.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "core/property_list.h"
#include "core/range.h"
#include "core/record_fields.h"

namespace tb {

struct ValueType;

// A field of a record.
struct FieldType {
  std::string_view name;
  std::size_t offset;  // in the record, in bytes
  const ValueType* type;
  bool isColumn;  // core/columns.h
  Range range;
};

// Access to the elements of a vector or of an optional (none or one).
struct Elements {
  std::size_t (*count)(const void* container) = nullptr;
  const void* (*at)(const void* container, std::size_t index) = nullptr;
  void* (*append)(void* container) = nullptr;                  // adds a default element
  void (*cut)(void* container, std::size_t length) = nullptr;  // drops the elements from `length` on
};

struct ValueType {
  enum class Form : std::uint8_t { boolean, integer, real, text, data, date, optional, list, record };

  Form form;
  std::size_t size;                    // in memory, in bytes
  const ValueType* element = nullptr;  // for an optional or a list
  Elements elements{};                 // for an optional or a list
  std::span<const FieldType> fields;   // for a record, in order
};

namespace detail {

template <class T>
inline constexpr bool isVector = false;
template <class T>
inline constexpr bool isVector<std::vector<T>> = true;

template <class T>
consteval ValueType describeType();

}  // namespace detail

// The description of a type that a variable, a list or a record field can have.
template <class T>
inline constexpr ValueType typeOf = detail::describeType<T>();

namespace detail {

// Whether the field is one of the record's columns, which are integers or doubles.
template <class Record>
consteval bool isColumn(std::size_t offset) {
  return std::apply(
      [offset]<class... T>(const RecordField<Record, T>&... column) {
        static_assert(((std::is_same_v<T, std::int64_t> || std::is_same_v<T, double>) && ...));
        return ((column.offset == offset) || ...);
      },
      columnsOf<Record>);
}

template <class Record>
consteval Range rangeOf(std::string_view field) {
  Range range;
  for (const FieldRange& row : rangesOf<Record>) {
    if (row.field == field) range = row.range;
  }
  return range;
}

template <class Record>
inline constexpr auto fieldTypes = [] {
  return std::apply(
      []<class... T>(const RecordField<Record, T>&... field) {
        return std::array{FieldType{field.name, field.offset, &typeOf<T>, isColumn<Record>(field.offset),
                                    rangeOf<Record>(field.name)}...};
      },
      fieldsOf<Record>);
}();

template <class T>
inline constexpr Elements vectorElements{
    .count = [](const void* container) { return static_cast<const std::vector<T>*>(container)->size(); },
    .at = [](const void* container, std::size_t index) -> const void* {
      return &(*static_cast<const std::vector<T>*>(container))[index];
    },
    .append = [](void* container) -> void* {
      return &static_cast<std::vector<T>*>(container)->emplace_back();
    },
    .cut = [](void* container,
              std::size_t length) { static_cast<std::vector<T>*>(container)->resize(length); }};

template <class T>
inline constexpr Elements optionalElements{
    .count = [](const void* container) -> std::size_t {
      return static_cast<const std::optional<T>*>(container)->has_value() ? 1 : 0;
    },
    .at = [](const void* container, std::size_t) -> const void* {
      return &**static_cast<const std::optional<T>*>(container);
    },
    .append = [](void* container) -> void* { return &static_cast<std::optional<T>*>(container)->emplace(); }};

template <class T>
consteval ValueType describeType() {
  using enum ValueType::Form;
  if constexpr (RecordType<T>) {
    return {.form = record, .size = sizeof(T), .fields = fieldTypes<T>};
  } else if constexpr (isVector<T>) {
    using Element = typename T::value_type;
    static_assert(!std::is_same_v<Element, bool>, "a vector of flags has no elements to point at");
    return {
        .form = list, .size = sizeof(T), .element = &typeOf<Element>, .elements = vectorElements<Element>};
  } else if constexpr (isOptional<T>) {
    using Element = typename T::value_type;
    return {.form = optional,
            .size = sizeof(T),
            .element = &typeOf<Element>,
            .elements = optionalElements<Element>};
  } else if constexpr (std::is_same_v<T, bool>) {
    return {.form = boolean, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    return {.form = integer, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, double>) {
    return {.form = real, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, std::string>) {
    return {.form = text, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, plist::Data>) {
    return {.form = data, .size = sizeof(T)};
  } else {
    static_assert(std::is_same_v<T, plist::Date>, "the save file knows no such type");
    return {.form = date, .size = sizeof(T)};
  }
}

}  // namespace detail
}  // namespace tb
