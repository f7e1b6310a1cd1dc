#pragma once

// A value that differs from every start value. All fields are set and differ from each other, so that swapped
// fields are found.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/record_fields.h"
#include "core/world_state.h"

namespace tb::test {

class Unusual {
 public:
  void fill(std::int64_t& value) { value = next(); }
  void fill(double& value) { value = static_cast<double>(next()) + 0.25; }
  void fill(bool& value) { value = !value; }
  void fill(std::string& value) { value = "né “" + std::to_string(next()) + "” 🎬\n"; }
  void fill(plist::Data& value) { value.bytes.assign(3, static_cast<std::byte>(next() % 256)); }
  void fill(plist::Date& value) { value.seconds = static_cast<double>(next()) + 0.5; }

  template <class T>
  void fill(std::vector<T>& values) {
    for (int count = 0; count < 2; ++count) fill(values.emplace_back());
  }

  // Two elements: one with its optional fields, one without.
  template <class T>
  void fill(List<T>& list) {
    for (const bool complete : {true, false}) {
      T element{};
      with_optionals_ = complete;
      fill(element);
      list.push_back(std::move(element));
    }
  }

  template <class T>
  void fill(std::optional<T>& value) {
    if (with_optionals_) fill(value.emplace());
  }

  template <RecordType Record>
  void fill(Record& record) {
    forEachField(record, [this](std::string_view, auto& field) { this->fill(field); });
  }

 private:
  std::int64_t next() { return last_ += 1009; }

  std::int64_t last_ = 7'000'000;
  bool with_optionals_ = true;
};

}  // namespace tb::test
