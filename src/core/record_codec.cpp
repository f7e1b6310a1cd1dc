#include "core/record_codec.h"

#include <algorithm>
#include <optional>

#include "core/format.h"
#include "core/property_list_objects.h"

namespace tb {

using plist::Object;
using plist::ObjectKind;
using plist::ReadError;
using Form = ValueType::Form;

std::string describe(const DecodeError& error) {
  switch (error.kind) {
    case DecodeError::Kind::unreadable:
      return std::string(plist::describe(error.readError));
    case DecodeError::Kind::wrongKind:
      if (error.field.empty()) return "The list, or an element of it, is of the wrong kind.";
      return tb::format("The {} of a record is of the wrong kind.", error.field);
  }
  std::unreachable();
}

// --- Encoding ---

namespace {

template <class T>
const T& as(const void* value) {
  return *static_cast<const T*>(value);
}

// The type and value of a field, or of the content of an optional; no value for an empty optional.
struct Content {
  const ValueType* type;
  const void* value;
};

Content contentOf(const FieldType& field, const std::byte* record) {
  const ValueType& type = *field.type;
  const void* const value = record + field.offset;
  if (type.form != Form::optional) return {&type, value};
  const bool present = type.elements.count(value) > 0;
  return {type.element, present ? type.elements.at(value, 0) : nullptr};
}

}  // namespace

ListEncoder::Reference ListEncoder::write(const ValueType& type, const void* value) {
  switch (type.form) {
    case Form::boolean:
      return writer_.boolean(as<bool>(value));
    case Form::integer:
      return writer_.integer(as<std::int64_t>(value));
    case Form::real:
      return writer_.real(as<double>(value));
    case Form::text:
      return writer_.text(as<std::string>(value));
    case Form::data:
      return writer_.data(as<plist::Data>(value).bytes);
    case Form::date:
      return writer_.date(as<plist::Date>(value));
    case Form::list:
      return writeList(type, value);
    case Form::record:
      return writeRecord(type, static_cast<const std::byte*>(value));
    case Form::optional:
      break;  // contentOf() has unwrapped it
  }
  std::unreachable();
}

ListEncoder::Reference ListEncoder::writeList(const ValueType& type, const void* list) {
  const std::size_t mark = writer_.mark();
  const std::size_t count = type.elements.count(list);
  for (std::size_t index = 0; index < count; ++index) add(*type.element, type.elements.at(list, index));
  return writer_.array(mark);
}

ListEncoder::Reference ListEncoder::writeRecord(const ValueType& type, const std::byte* record) {
  const std::size_t mark = writer_.mark();
  auto key = keysOf(type).begin();
  for (const FieldType& field : type.fields) {
    if (contentOf(field, record).value != nullptr) writer_.putAside(*key);
    ++key;
  }
  for (const FieldType& field : type.fields) {
    if (const Content content = contentOf(field, record); content.value != nullptr) {
      add(*content.type, content.value);
    }
  }
  return writer_.dictionary(mark);
}

std::span<const ListEncoder::Reference> ListEncoder::keysOf(const ValueType& type) {
  for (const Keys& known : keys_) {
    if (known.type == &type) return known.references;
  }
  Keys& added = keys_.emplace_back(Keys{&type, {}});
  for (const FieldType& field : type.fields) added.references.push_back(writer_.text(field.name));
  return added.references;
}

// --- Decoding ---

namespace {

class ListDecoder {
 public:
  ListDecoder(const plist::Objects& objects, std::size_t fileSize) : objects_(objects), budget_(fileSize) {}

  // Reads the file's list into the elements that append(list) creates, and goes on after unread ones.
  bool readList(plist::Reference reference, const ValueType& type, void* (*append)(void* list), void* list);

  [[nodiscard]] std::vector<UnreadElement> takeUnread() { return std::move(unread_); }

  [[nodiscard]] const DecodeError& error() const { return error_; }

 private:
  // The dictionary entry of each field. It is the same for nearly all records of a list, so it is cached by
  // the dictionary's key references.
  struct Layout {
    const ValueType* type;
    std::span<const std::byte> keys;
    std::vector<std::size_t> entries;  // by field; `absent` without such a key
  };
  static constexpr std::size_t absent = ~std::size_t{0};

  // Instead of a reference: the dictionary does not have the key.
  static constexpr plist::Reference missing = ~plist::Reference{0};

  // These set their argument and return true, or set error_ and return false.

  bool read(plist::Reference reference, const ValueType& type, void* value);
  bool readElements(plist::Reference reference, const ValueType& type, void* (*append)(void* list),
                    void* list);
  template <NumberType T>
  bool readNumber(const Object& object, void* value);
  bool readQuickly(plist::Reference reference, const ValueType& type, void* value);
  bool readText(const Object& object, std::string& text);
  bool readData(const Object& object, plist::Data& data);
  bool readRecord(plist::Reference reference, const ValueType& type, std::byte* record);
  bool enterRecord(plist::Reference reference, const ValueType& type);
  bool readField(plist::Reference value, const FieldType& field, void* content);

  bool take(plist::Reference reference, Object& object);
  bool enter(plist::Reference reference, ObjectKind kind, std::size_t entrySize, Object& object);
  bool leave();

  const Layout* layoutOf(const Object& dictionary, const ValueType& type);
  bool findFields(const Object& dictionary, std::span<const FieldType> fields, Layout& layout);

  // These set error_ and return false.
  bool unreadable(ReadError error);
  bool wrongKind();
  bool inField(std::string_view name);

  const plist::Objects& objects_;
  plist::Budget budget_;
  std::size_t depth_ = 0;
  std::vector<Layout> layouts_;
  std::vector<plist::Reference> values_;  // of the fields of the current record and its enclosing records
  DecodeError error_;
  std::vector<UnreadElement> unread_;
};

bool ListDecoder::unreadable(ReadError error) {
  error_ = {DecodeError::Kind::unreadable, error, {}};
  return false;
}

bool ListDecoder::wrongKind() {
  error_ = {.kind = DecodeError::Kind::wrongKind};
  return false;
}

// Adds the name of the unreadable field to the error, if it has none yet.
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

bool ListDecoder::read(plist::Reference reference, const ValueType& type, void* value) {
  const Elements& elements = type.elements;
  switch (type.form) {
    case Form::list:
      return readElements(reference, *type.element, elements.append, value);
    case Form::optional:
      return read(reference, *type.element, elements.append(value));
    case Form::record:
      return readRecord(reference, type, static_cast<std::byte*>(value));
    default:
      break;
  }
  if (readQuickly(reference, type, value)) return true;
  Object object;
  if (!take(reference, object)) return false;
  switch (type.form) {
    case Form::boolean:
      return readNumber<bool>(object, value);
    case Form::integer:
      return readNumber<std::int64_t>(object, value);
    case Form::real:
      return readNumber<double>(object, value);
    case Form::text:
      return readText(object, *static_cast<std::string*>(value));
    case Form::data:
      return readData(object, *static_cast<plist::Data*>(value));
    default:
      if (object.kind != ObjectKind::date) return wrongKind();
      static_cast<plist::Date*>(value)->seconds = object.real;
      return true;
  }
}

// Reads a number that is stored in the form of its field, as nearly all are.
bool ListDecoder::readQuickly(plist::Reference reference, const ValueType& type, void* value) {
  if (type.form == Form::integer) {
    const auto integer = objects_.integerAt(reference);
    if (integer) *static_cast<std::int64_t*>(value) = *integer;
    return integer.has_value();
  }
  if (type.form == Form::real) {
    const auto real = objects_.realAt(reference);
    if (real) *static_cast<double*>(value) = *real;
    return real.has_value();
  }
  return false;
}

template <NumberType T>
bool ListDecoder::readNumber(const Object& object, void* value) {
  const auto number = object.kind == ObjectKind::integer   ? numberAs<T>(object.integer)
                      : object.kind == ObjectKind::real    ? numberAs<T>(object.real)
                      : object.kind == ObjectKind::boolean ? numberAs<T>(object.integer != 0)
                                                           : std::nullopt;
  if (!number) return wrongKind();
  *static_cast<T*>(value) = *number;
  return true;
}

bool ListDecoder::readText(const Object& object, std::string& text) {
  if (object.kind != ObjectKind::asciiText && object.kind != ObjectKind::utf16Text) return wrongKind();
  auto read = plist::textOf(object, budget_);
  if (!read) return unreadable(read.error());
  text = *std::move(read);
  return true;
}

bool ListDecoder::readData(const Object& object, plist::Data& data) {
  if (object.kind != ObjectKind::data) return wrongKind();
  if (!budget_.spend(object.entries)) return unreadable(ReadError::tooMuchWork);
  data.bytes.assign(object.content.begin(), object.content.end());
  return true;
}

// Enters a container of the given kind, whose entries take `entrySize` bytes of memory each.
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

bool ListDecoder::readList(plist::Reference reference, const ValueType& type, void* (*append)(void* list),
                           void* list) {
  Object array;
  if (!enter(reference, ObjectKind::array, type.size, array)) return false;
  const std::size_t depth = depth_;
  for (std::size_t index = 0; index < array.entries; ++index) {
    if (read(objects_.referenceAt(array.content, index), type, append(list))) continue;
    unread_.push_back({index, error_});
    depth_ = depth;
    values_.clear();
  }
  return leave();
}

bool ListDecoder::readElements(plist::Reference reference, const ValueType& type, void* (*append)(void* list),
                               void* list) {
  Object array;
  if (!enter(reference, ObjectKind::array, type.size, array)) return false;
  for (std::size_t index = 0; index < array.entries; ++index) {
    if (!read(objects_.referenceAt(array.content, index), type, append(list))) return false;
  }
  return leave();
}

bool ListDecoder::readRecord(plist::Reference reference, const ValueType& type, std::byte* record) {
  const std::size_t mark = values_.size();
  if (!enterRecord(reference, type)) return false;
  for (std::size_t index = 0; index < type.fields.size(); ++index) {
    const FieldType& field = type.fields[index];
    if (!readField(values_[mark + index], field, record + field.offset)) return false;
  }
  values_.resize(mark);
  return leave();
}

// Appends each field's value reference, in order, or `missing`. The record's memory is charged to its list;
// its entries are charged here, because unknown keys also cost time.
bool ListDecoder::enterRecord(plist::Reference reference, const ValueType& type) {
  Object dictionary;
  if (!enter(reference, ObjectKind::dictionary, sizeof(plist::Value), dictionary)) return false;
  const Layout* layout = layoutOf(dictionary, type);
  if (layout == nullptr) return false;
  for (const std::size_t entry : layout->entries) {
    values_.push_back(missing);
    if (entry == absent) continue;
    values_.back() = objects_.referenceAt(dictionary.content, dictionary.entries + entry);
    if (values_.back() == missing) return unreadable(ReadError::badReference);
  }
  return true;
}

bool ListDecoder::readField(plist::Reference value, const FieldType& field, void* content) {
  return value == missing || read(value, *field.type, content) || inField(field.name);
}

const ListDecoder::Layout* ListDecoder::layoutOf(const Object& dictionary, const ValueType& type) {
  auto layout = std::ranges::find(layouts_, &type, &Layout::type);
  if (layout == layouts_.end()) layout = layouts_.insert(layout, Layout{&type, {}, {}});
  const auto keys = dictionary.content.first(dictionary.content.size() / 2);
  const bool known = !layout->entries.empty() && std::ranges::equal(layout->keys, keys);
  if (!known && !findFields(dictionary, type.fields, *layout)) {
    layout->entries.clear();
    return nullptr;
  }
  layout->keys = keys;
  return &*layout;
}

bool ListDecoder::findFields(const Object& dictionary, std::span<const FieldType> fields, Layout& layout) {
  layout.entries.assign(fields.size(), absent);
  for (std::size_t entry = 0; entry < dictionary.entries; ++entry) {
    Object key;
    if (!take(objects_.referenceAt(dictionary.content, entry), key)) return false;
    const auto text = plist::textOf(key, budget_);
    if (!text) return unreadable(text.error());
    const auto field = std::ranges::find(fields, *text, &FieldType::name);
    if (field == fields.end()) continue;
    std::size_t& found = layout.entries[static_cast<std::size_t>(field - fields.begin())];
    if (found != absent)
      return unreadable(ReadError::badObject);  // a duplicate key, rejected as by plist::read
    found = entry;
  }
  return true;
}

}  // namespace

std::expected<std::vector<UnreadElement>, DecodeError> decodeList(std::span<const std::byte> file,
                                                                  const ValueType& type,
                                                                  void* (*append)(void* list), void* list) {
  const auto objects = plist::Objects::open(file);
  if (!objects) return std::unexpected(DecodeError{DecodeError::Kind::unreadable, objects.error(), {}});
  ListDecoder decoder(*objects, file.size());
  if (!decoder.readList(objects->root(), type, append, list)) return std::unexpected(decoder.error());
  return decoder.takeUnread();
}

std::size_t elementsIn(std::span<const std::byte> file) {
  const auto objects = plist::Objects::open(file);
  const auto root = objects.and_then([](const plist::Objects& all) { return all.object(all.root()); });
  return root && root->kind == ObjectKind::array ? root->entries : 0;
}

}  // namespace tb
