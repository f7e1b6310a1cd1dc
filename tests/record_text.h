#pragma once

// Records as text with their nondefault fields: "filmId 7, genres [Drama, Western]".

#include <format>
#include <string>
#include <utility>
#include <vector>

#include "core/fields/fields.h"
#include "core/list.h"
#include "core/property_list.h"

namespace tb::test {

inline std::string textOf(std::int64_t value) { return std::format("{}", value); }
inline std::string textOf(double value) { return std::format("{:.10g}", value); }
inline std::string textOf(bool value) { return value ? "yes" : "no"; }
inline std::string textOf(const std::string& value) { return value; }
inline std::string textOf(const plist::Data& value) { return std::format("{} bytes", value.bytes.size()); }
inline std::string textOf(plist::Date value) { return std::format("{:.10g} s", value.seconds); }
template <RecordType Record>
std::string textOf(const Record& record);
template <class T>
std::string textOf(const std::optional<T>& value) {
  return value ? textOf(*value) : "none";
}
template <class T>
std::string textOf(const std::vector<T>& values) {
  std::string text;
  for (const T& value : values) text += (text.empty() ? "" : ", ") + textOf(value);
  return "[" + text + "]";
}

// The fields that differ from `before`.
template <RecordType Record>
std::string changes(const Record& before, const Record& record) {
  std::vector<std::string> old;
  forEachField(before, [&](std::string_view, const auto& field) { old.push_back(textOf(field)); });
  std::string text;
  std::size_t place = 0;
  forEachField(record, [&](std::string_view name, const auto& field) {
    const std::string now = textOf(field);
    if (now != old[place++]) text += std::format("{}{} {}", text.empty() ? "" : ", ", name, now);
  });
  return text;
}

// The fields that differ from a default record; records of a list are each in brackets.
template <RecordType Record>
std::string shown(const Record& record) {
  return changes(Record{}, record);
}
template <RecordType Record>
std::string shown(const List<Record>& list) {
  std::string text;
  for (const Record& record : list) text += "(" + shown(record) + ")";
  return text;
}

// A nested record.
template <RecordType Record>
std::string textOf(const Record& record) {
  return "(" + shown(record) + ")";
}

}  // namespace tb::test
