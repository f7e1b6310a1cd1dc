#include <algorithm>
#include <array>

#include "core/property_list.h"
#include "core/property_list_objects.h"
#include "core/property_list_xml.h"

namespace tb::plist {

bool namesAKeyTwice(const Dictionary& dictionary) {
  std::vector<std::string_view> keys;
  keys.reserve(dictionary.size());
  for (const auto& [key, value] : dictionary) keys.push_back(key);
  std::ranges::sort(keys);
  return std::ranges::adjacent_find(keys) != keys.end();
}

namespace {

class ValueReader {
 public:
  ValueReader(const Objects& objects, std::size_t fileSize) : objects_(objects), budget_(fileSize) {}

  std::expected<Value, ReadError> value(Reference reference) {
    const auto object = objects_.object(reference);
    if (!object) return std::unexpected(object.error());
    switch (object->kind) {
      case ObjectKind::boolean:
        return Value{object->integer != 0};
      case ObjectKind::integer:
        return Value{object->integer};
      case ObjectKind::real:
        return Value{object->real};
      case ObjectKind::date:
        return Value{Date{object->real}};
      case ObjectKind::data:
        return data(*object);
      case ObjectKind::asciiText:
      case ObjectKind::utf16Text:
        return textOf(*object, budget_).transform([](std::string&& text) { return Value{std::move(text)}; });
      case ObjectKind::array:
        return container(reference, *object, &ValueReader::array);
      case ObjectKind::dictionary:
        return container(reference, *object, &ValueReader::dictionary);
    }
    std::unreachable();
  }

  // The entries of a dictionary; only those with these keys if `keys` is not null.
  std::expected<Dictionary, ReadError> entries(const Object& object,
                                               const std::span<const std::string_view>* keys) {
    if (!budget_.spend(object.entries, sizeof(Dictionary::value_type))) {
      return std::unexpected(ReadError::tooMuchWork);
    }
    Dictionary dictionary;
    dictionary.reserve(keys == nullptr ? object.entries : keys->size());
    for (std::size_t index = 0; index < object.entries; ++index) {
      auto key =
          objects_.object(objects_.referenceAt(object.content, index)).and_then([&](const Object& name) {
            return textOf(name, budget_);
          });
      if (!key) return std::unexpected(key.error());
      if (keys != nullptr && !std::ranges::contains(*keys, *key)) continue;
      auto held = value(objects_.referenceAt(object.content, object.entries + index));
      if (!held) return std::unexpected(held.error());
      dictionary.emplace_back(*std::move(key), *std::move(held));
    }
    if (namesAKeyTwice(dictionary)) return std::unexpected(ReadError::badObject);
    return dictionary;
  }

 private:
  std::expected<Value, ReadError> data(const Object& object) {
    if (!budget_.spend(object.entries)) return std::unexpected(ReadError::tooMuchWork);
    return Value{Data{Bytes(object.content.begin(), object.content.end())}};
  }

  using ReadContent = std::expected<Value, ReadError> (ValueReader::*)(const Object&);

  // A cycle longer than maximumDepth is reported as tooDeep.
  std::expected<Value, ReadError> container(Reference reference, const Object& object, ReadContent content) {
    if (std::ranges::contains(path_.begin(), path_.begin() + depth_, reference)) {
      return std::unexpected(ReadError::badReference);
    }
    if (depth_ == maximumDepth) return std::unexpected(ReadError::tooDeep);
    path_[depth_] = reference;
    depth_ += 1;
    auto value = (this->*content)(object);
    depth_ -= 1;
    return value;
  }

  std::expected<Value, ReadError> array(const Object& object) {
    if (!budget_.spend(object.entries, sizeof(Value))) return std::unexpected(ReadError::tooMuchWork);
    Array array;
    array.reserve(object.entries);
    for (std::size_t index = 0; index < object.entries; ++index) {
      auto element = value(objects_.referenceAt(object.content, index));
      if (!element) return element;
      array.push_back(*std::move(element));
    }
    return Value{std::move(array)};
  }

  std::expected<Value, ReadError> dictionary(const Object& object) {
    return entries(object, nullptr).transform([](Dictionary&& all) { return Value{std::move(all)}; });
  }

  const Objects& objects_;
  Budget budget_;
  std::array<Reference, maximumDepth> path_{};  // the containers being read, outermost first
  std::size_t depth_ = 0;
};

}  // namespace

const Value* Value::find(std::string_view key) const {
  const auto* dictionary = as<Dictionary>();
  if (dictionary == nullptr) return nullptr;
  const auto entry = std::ranges::find(*dictionary, key, &Dictionary::value_type::first);
  return entry == dictionary->end() ? nullptr : &entry->second;
}

std::string_view describe(ReadError error) {
  switch (error) {
    case ReadError::notAPropertyList:
      return "The file is not a binary property list.";
    case ReadError::badTrailer:
      return "The sizes, counts or offsets at the end of the file do not fit the file.";
    case ReadError::badObject:
      return "The file holds an object that is cut off or of no known kind.";
    case ReadError::badReference:
      return "The file refers to a missing object, or to itself in a cycle.";
    case ReadError::badText:
      return "The file holds invalid text.";
    case ReadError::tooDeep:
      return "The file is nested too deeply.";
    case ReadError::tooMuchWork:
      return "The file repeats its objects too often.";
  }
  std::unreachable();
}

std::expected<Value, ReadError> read(std::span<const std::byte> file) {
  return Objects::open(file).and_then(
      [&](const Objects& objects) { return ValueReader(objects, file.size()).value(objects.root()); });
}

std::expected<Dictionary, ReadError> readEntries(std::span<const std::byte> file,
                                                 std::span<const std::string_view> keys) {
  const auto objects = Objects::open(file);
  if (!objects) return std::unexpected(objects.error());
  const auto root = objects->object(objects->root());
  if (!root) return std::unexpected(root.error());
  if (root->kind != ObjectKind::dictionary) return std::unexpected(ReadError::badObject);
  return ValueReader(*objects, file.size()).entries(*root, &keys);
}

}  // namespace tb::plist
