#include "core/record_codec.h"

#include <algorithm>
#include <format>

namespace tb {

using plist::Object;
using plist::ObjectKind;
using plist::ReadError;

std::string describe(const DecodeError& error) {
  switch (error.kind) {
    case DecodeError::Kind::unreadable:
      return std::string(plist::describe(error.readError));
    case DecodeError::Kind::missingField:
      return std::format("A record of the list has no {}.", error.field);
    case DecodeError::Kind::wrongKind:
      if (error.field.empty()) return "The list, or an element of it, is of the wrong kind.";
      return std::format("The {} of a record is of the wrong kind.", error.field);
  }
  std::unreachable();
}

namespace detail {

std::span<const ListEncoder::Reference> ListEncoder::keys(std::span<const std::string_view> names) {
  for (const Keys& known : keys_) {
    if (known.names == names.data()) return known.references;
  }
  Keys& added = keys_.emplace_back(Keys{names.data(), {}});
  for (const std::string_view name : names) added.references.push_back(writer_.text(name));
  return added.references;
}

bool ListDecoder::unreadable(ReadError error) {
  error_ = {DecodeError::Kind::unreadable, error, {}};
  return false;
}

bool ListDecoder::wrongKind() {
  error_ = {.kind = DecodeError::Kind::wrongKind};
  return false;
}

bool ListDecoder::missingField(std::string_view name) {
  error_ = {.kind = DecodeError::Kind::missingField, .field = name};
  return false;
}

// Names the field that could not be read, the innermost of nested ones.
bool ListDecoder::inField(std::string_view name) {
  if (error_.kind == DecodeError::Kind::wrongKind && error_.field.empty()) error_.field = name;
  return false;
}

bool ListDecoder::take(plist::Reference reference, Object& object) {
  const auto taken = objects_.object(reference);
  if (!taken) return unreadable(taken.error());
  object = *taken;
  return true;
}

bool ListDecoder::read(plist::Reference reference, std::string& text) {
  Object object;
  if (!take(reference, object)) return false;
  if (object.kind != ObjectKind::asciiText && object.kind != ObjectKind::utf16Text) return wrongKind();
  auto read = plist::textOf(object, budget_);
  if (!read) return unreadable(read.error());
  text = *std::move(read);
  return true;
}

bool ListDecoder::read(plist::Reference reference, plist::Data& data) {
  Object object;
  if (!take(reference, object)) return false;
  if (object.kind != ObjectKind::data) return wrongKind();
  if (!budget_.spend(object.entries)) return unreadable(ReadError::tooMuchWork);
  data.bytes.assign(object.content.begin(), object.content.end());
  return true;
}

bool ListDecoder::read(plist::Reference reference, plist::Date& date) {
  Object object;
  if (!take(reference, object)) return false;
  if (object.kind != ObjectKind::date) return wrongKind();
  date.seconds = object.real;
  return true;
}

// A container of the given kind, whose entries take `entrySize` bytes of memory each.
bool ListDecoder::enter(plist::Reference reference, ObjectKind kind, std::size_t entrySize, Object& object) {
  if (!take(reference, object)) return false;
  if (object.kind != kind) return wrongKind();
  if (depth_ == plist::maximumDepth) return unreadable(ReadError::tooDeep);
  if (!budget_.spend(object.entries, entrySize)) return unreadable(ReadError::tooMuchWork);
  depth_ += 1;
  return true;
}

bool ListDecoder::leave() {
  depth_ -= 1;
  return true;
}

// Gives the value's reference for each name, in their order, or `missing`. The record's own memory is paid
// for by the list that it is in; here the entries are, since those that no field has cost time as well.
bool ListDecoder::enterRecord(plist::Reference reference, std::span<const std::string_view> names,
                              std::span<plist::Reference> values) {
  Object dictionary;
  if (!enter(reference, ObjectKind::dictionary, sizeof(plist::Value), dictionary)) return false;
  const Layout* layout = layoutOf(dictionary, names);
  if (layout == nullptr) return false;
  for (std::size_t field = 0; field < names.size(); ++field) {
    const std::size_t entry = layout->entries[field];
    values[field] = missing;
    if (entry == absent) continue;
    values[field] = objects_.referenceAt(dictionary.content, dictionary.entries + entry);
    if (values[field] == missing) return unreadable(ReadError::badReference);
  }
  return true;
}

const ListDecoder::Layout* ListDecoder::layoutOf(const Object& dictionary,
                                                 std::span<const std::string_view> names) {
  auto layout = std::ranges::find(layouts_, names.data(), &Layout::names);
  if (layout == layouts_.end()) layout = layouts_.insert(layout, Layout{names.data(), {}, {}});
  const auto keys = dictionary.content.first(dictionary.content.size() / 2);
  const bool known = !layout->entries.empty() && std::ranges::equal(layout->keys, keys);
  if (!known && !findFields(dictionary, names, *layout)) {
    layout->entries.clear();
    return nullptr;
  }
  layout->keys = keys;
  return &*layout;
}

bool ListDecoder::findFields(const Object& dictionary, std::span<const std::string_view> names,
                             Layout& layout) {
  layout.entries.assign(names.size(), absent);
  for (std::size_t entry = 0; entry < dictionary.entries; ++entry) {
    Object key;
    if (!take(objects_.referenceAt(dictionary.content, entry), key)) return false;
    const auto text = plist::textOf(key, budget_);
    if (!text) return unreadable(text.error());
    const auto name = std::ranges::find(names, *text);
    if (name == names.end()) continue;
    std::size_t& found = layout.entries[static_cast<std::size_t>(name - names.begin())];
    if (found != absent) return unreadable(ReadError::badObject);  // twice, as plist::read refuses it
    found = entry;
  }
  return true;
}

}  // namespace detail
}  // namespace tb
