#pragma once

// How a record names its fields for the save file.
//
// A record is a plain struct. Its fields are listed by a line
//
//   RECORD_FIELDS(Child, id, name, gender, ...)
//
// in the order of the struct. The encoder, the decoder and the tests use that list. A missing, repeated or
// misordered field does not compile, so every field is saved.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/range.h"

namespace tb {

template <class Record, class T>
struct RecordField {
  std::string_view name;
  T Record::* member;
  std::size_t offset;  // in the struct, in bytes
};

// Specialized by RECORD_FIELDS: a tuple of RecordField, in the order of the struct.
template <class Record>
inline constexpr auto fieldsOf = nullptr;

// Specialized by RECORD_COLUMNS in the same way.
template <class Record>
inline constexpr auto columnsOf = std::tuple{};

// The lawful values of a field.
struct FieldRange {
  std::string_view field;
  Range range;
};

// Specialized by RECORD_RANGES.
template <class Record>
inline constexpr auto rangesOf = std::array<FieldRange, 0>{};

template <class T>
concept RecordType = !std::is_same_v<decltype(fieldsOf<T>), const std::nullptr_t>;

// Calls visit(name, value) for every field of the record, in order.
template <class Record, class Visit>
constexpr void forEachField(Record&& record, Visit&& visit) {
  std::apply([&](const auto&... field) { (visit(field.name, record.*field.member), ...); },
             fieldsOf<std::remove_cvref_t<Record>>);
}

namespace detail {

template <class T>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<std::optional<T>> = true;

struct AnyField {
  template <class T>
    requires(!isOptional<T>)
  operator T() const;
};

template <std::size_t>
using AnyFieldAt = AnyField;

// Whether the aggregate can be initialized with that many values, which holds up to its number of fields.
template <class Record, std::size_t... Index>
consteval bool takesFields(std::index_sequence<Index...>) {
  return requires { Record{AnyFieldAt<Index>{}...}; };
}

template <class Record, std::size_t... Index>
consteval bool inOrder(std::index_sequence<Index...>) {
  constexpr auto& fields = fieldsOf<Record>;
  return ((std::get<Index>(fields).offset < std::get<Index + 1>(fields).offset) && ...);
}

}  // namespace detail

template <class Record>
consteval bool describesWholeRecord() {
  constexpr std::size_t named = std::tuple_size_v<std::remove_cvref_t<decltype(fieldsOf<Record>)>>;
  return detail::takesFields<Record>(std::make_index_sequence<named>{}) &&
         !detail::takesFields<Record>(std::make_index_sequence<named + 1>{}) &&
         detail::inOrder<Record>(std::make_index_sequence<named - 1>{});
}

// Whether each range is of a field of the record.
template <class Record>
consteval bool rangesFit() {
  return std::ranges::all_of(rangesOf<Record>, [](const FieldRange& row) {
    const auto isField = [](std::string_view name) {
      return std::apply([name](const auto&... field) { return ((field.name == name) || ...); },
                        fieldsOf<Record>);
    };
    return isField(row.field) && (row.range.parallel.empty() || isField(row.range.parallel));
  });
}

}  // namespace tb

#define TB_PARENTHESES ()
#define TB_EXPAND(...) TB_EXPAND_1(TB_EXPAND_1(TB_EXPAND_1(TB_EXPAND_1(__VA_ARGS__))))
#define TB_EXPAND_1(...) TB_EXPAND_2(TB_EXPAND_2(TB_EXPAND_2(TB_EXPAND_2(__VA_ARGS__))))
#define TB_EXPAND_2(...) TB_EXPAND_3(TB_EXPAND_3(TB_EXPAND_3(TB_EXPAND_3(__VA_ARGS__))))
#define TB_EXPAND_3(...) __VA_ARGS__
#define TB_FIELD_LIST(Record, ...) __VA_OPT__(TB_EXPAND(TB_FIELD_STEP(Record, __VA_ARGS__)))
#define TB_FIELD_STEP(Record, name, ...)                                                \
  ::tb::RecordField{#name, &Record::name, __builtin_offsetof(Record, name)} __VA_OPT__( \
      , TB_FIELD_AGAIN TB_PARENTHESES(Record, __VA_ARGS__))
#define TB_FIELD_AGAIN() TB_FIELD_STEP

// Belongs in namespace tb, in core/fields/.
#define RECORD_FIELDS(Record, ...)                                                         \
  template <>                                                                              \
  inline constexpr auto fieldsOf<Record> = std::tuple{TB_FIELD_LIST(Record, __VA_ARGS__)}; \
  static_assert(describesWholeRecord<Record>(), #Record                                    \
                " has a field that RECORD_FIELDS misses or "                               \
                "misplaces")

// Follows RECORD_FIELDS: the number fields that change every week in old records. They are stored in columns
// (core/columns.h).
#define RECORD_COLUMNS(Record, ...)                      \
  template <>                                            \
  inline constexpr auto columnsOf<Record> = std::tuple { \
    TB_FIELD_LIST(Record, __VA_ARGS__)                   \
  }

// Follows RECORD_FIELDS: {field, range} for the fields whose values a rule relies on (core/range.h).
#define RECORD_RANGES(Record, ...)                                                   \
  template <>                                                                        \
  inline constexpr auto rangesOf<Record> = std::to_array<FieldRange>({__VA_ARGS__}); \
  static_assert(rangesFit<Record>(), #Record " has no such field")
