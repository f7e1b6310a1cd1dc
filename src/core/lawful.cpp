#include "core/lawful.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace tb {

namespace {

using Form = ValueType::Form;

class Mender {
 public:
  void mend(const ValueType& type, const Range& range, void* value);
  [[nodiscard]] const Mending& result() const { return result_; }

 private:
  void mendInteger(const Range& range, std::int64_t& value);
  void mendReal(const Range& range, double& value);
  void mendDate(plist::Date& date);
  void mendText(const Range& range, std::string& text);
  void mendData(plist::Data& data);
  void mendElements(const ValueType& type, const Range& range, void* container);
  void mendRecord(const ValueType& type, std::byte* record);
  void cutParallel(const ValueType& type, const FieldType& field, std::byte* record);
  void cut(const ValueType& type, void* list, std::size_t length);
  void fill(const ValueType& type, void* list, std::size_t length);

  Mending result_;
};

void Mender::mend(const ValueType& type, const Range& range, void* value) {
  switch (type.form) {
    case Form::boolean:
      return;
    case Form::integer:
      return mendInteger(range, *static_cast<std::int64_t*>(value));
    case Form::real:
      return mendReal(range, *static_cast<double*>(value));
    case Form::text:
      return mendText(range, *static_cast<std::string*>(value));
    case Form::data:
      return mendData(*static_cast<plist::Data*>(value));
    case Form::date:
      return mendDate(*static_cast<plist::Date*>(value));
    case Form::optional:
    case Form::list:
      return mendElements(type, range, value);
    case Form::record:
      return mendRecord(type, static_cast<std::byte*>(value));
  }
}

void Mender::mendInteger(const Range& range, std::int64_t& value) {
  const auto number = static_cast<double>(value);
  if (number >= range.least && number <= range.most) return;
  if (range.kind == Range::Kind::choice) result_.isPossible = false;
  value = static_cast<std::int64_t>(nearestLawful(range, number));
  result_.mended += 1;
}

void Mender::mendReal(const Range& range, double& value) {
  if (value >= range.least && value <= range.most) return;
  value = nearestLawful(range, value);
  result_.mended += 1;
}

void Mender::mendDate(plist::Date& date) { mendReal(Range{}, date.seconds); }

void Mender::mendText(const Range& range, std::string& text) {
  const std::size_t longest =
      range.most < Range::farthest ? static_cast<std::size_t>(range.most) : longestText;
  if (text.size() <= longest) return;
  text.resize(lengthWithin(text, longest));
  result_.mended += 1;
}

void Mender::mendData(plist::Data& data) {
  if (data.bytes.size() <= longestData) return;
  data.bytes.clear();
  result_.mended += 1;
}

void Mender::mendElements(const ValueType& type, const Range& range, void* container) {
  if (type.form == Form::list) {
    cut(type, container, longestNumberList);
    fill(type, container, range.fewest);
  }
  const std::size_t count = type.elements.count(container);
  for (std::size_t index = 0; index < count; ++index) {
    mend(*type.element, range, const_cast<void*>(type.elements.at(container, index)));
  }
}

void Mender::mendRecord(const ValueType& type, std::byte* record) {
  for (const FieldType& field : type.fields) mend(*field.type, field.range, record + field.offset);
  // A list can be cut by the last of several that are parallel to it.
  for (int pass = 0; pass < 2; ++pass) {
    for (const FieldType& field : type.fields) {
      if (!field.range.parallel.empty()) cutParallel(type, field, record);
    }
  }
}

// Cuts the longer one of two parallel lists.
void Mender::cutParallel(const ValueType& type, const FieldType& field, std::byte* record) {
  const auto other = std::ranges::find(type.fields, field.range.parallel, &FieldType::name);
  void* const list = record + field.offset;
  void* const otherList = record + other->offset;
  cut(*field.type, list, other->type->elements.count(otherList));
  cut(*other->type, otherList, field.type->elements.count(list));
}

void Mender::cut(const ValueType& type, void* list, std::size_t length) {
  if (type.elements.count(list) <= length) return;
  type.elements.cut(list, length);
  result_.mended += 1;
}

// Adds elements with start values.
void Mender::fill(const ValueType& type, void* list, std::size_t length) {
  if (type.elements.count(list) >= length) return;
  while (type.elements.count(list) < length) type.elements.append(list);
  result_.mended += 1;
}

}  // namespace

Mending makeLawful(const ValueType& type, const Range& range, void* value) {
  Mender mender;
  mender.mend(type, range, value);
  return mender.result();
}

double nearestLawful(const Range& range, double number) {
  return std::clamp(std::isnan(number) ? 0 : number, range.least, range.most);
}

std::size_t lengthWithin(std::string_view text, std::size_t length) {
  const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  if (text.size() <= length) return text.size();
  while (length > 0 && isContinuation(text[length])) length -= 1;
  return length;
}

}  // namespace tb
