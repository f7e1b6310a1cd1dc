#include "core/save.h"

#include <algorithm>
#include <cstddef>
#include <expected>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/columns.h"
#include "core/debug_log.h"
#include "core/lawful.h"
#include "core/record_codec.h"
#include "core/save_store.h"
#include "core/value_conversion.h"

namespace tb {

namespace {

using Form = ValueType::Form;

Shape shapeOf(const Variable& list) {
  return list.type->form == Form::record ? Shape::recordList : Shape::plainList;
}

// --- Saving ---

Bytes encodePiece(const ValueType& type, const ListBase& list, std::size_t first, std::size_t count) {
  ListEncoder encoder;
  for (std::size_t index = first; index < first + count; ++index) encoder.add(type, list.element(index));
  return encoder.finish();
}

bool isColumn(const ValueType& type, std::size_t offset) {
  const auto field = std::ranges::find(type.fields, offset, &FieldType::offset);
  return field != type.fields.end() && field->isColumn;
}

std::vector<SaveStore::PieceWrite> changedPieces(const ValueType& type, const ListBase& list) {
  // An empty list is stored as one empty piece, so that its key exists.
  if (list.empty()) return {{.piece = 0, .bytes = encodePiece(type, list, 0, 0)}};
  const bool columnsSuffice =
      std::ranges::all_of(list.fieldsSet(), [&](std::size_t offset) { return isColumn(type, offset); });
  std::vector<SaveStore::PieceWrite> writes;
  for (const auto& piece : list.pieces()) {
    if (!piece.changed && (columnsSuffice || !piece.fieldsSet)) continue;
    writes.push_back({.piece = piece.piece, .bytes = std::nullopt});
    if (piece.count > 0) writes.back().bytes = encodePiece(type, list, piece.first, piece.count);
  }
  return writes;
}

Bytes encodeStretch(const FieldType& column, const ListBase& list, const ListPart& part) {
  ListEncoder encoder;
  for (std::size_t index = part.first; index < part.first + part.count; ++index) {
    encoder.add(*column.type, static_cast<const std::byte*>(list.element(index)) + column.offset);
  }
  return encoder.finish();
}

// Saves the changed stretches of the columns.
void saveColumns(SaveStore& store, const Variable& variable, const ListBase& list) {
  if (std::ranges::none_of(variable.type->fields, &FieldType::isColumn)) return;
  Stretches stretches;
  std::set<std::int64_t> changed;
  for (const auto& piece : list.pieces()) {
    if (piece.count > 0) addPiece(stretches, piece.piece, piece.first, piece.count);
    if (piece.changed || piece.fieldsSet) changed.insert(stretchOf(piece.piece));
  }
  for (const FieldType& field : variable.type->fields) {
    if (!field.isColumn) continue;
    std::vector<SaveStore::PieceWrite> writes;
    for (const std::int64_t stretch : changed) {
      writes.push_back({.piece = stretch, .bytes = std::nullopt});
      const auto part = stretches.find(stretch);
      if (part != stretches.end()) writes.back().bytes = encodeStretch(field, list, part->second);
    }
    store.putPieces(columnKey(variable.key, field.name), Shape::column, list.replacesStored(),
                    std::move(writes));
  }
}

// Returns whether the list had changed.
bool saveList(SaveStore& store, const Variable& variable, ListBase& list) {
  if (!list.changed()) return false;
  // Changes can only be added to stored pieces.
  const Shape shape = shapeOf(variable);
  const SaveStore::Entry* const stored = store.entry(variable.key);
  if (stored == nullptr || stored->shape != shape) list.replaceStored();
  store.putPieces(variable.key, shape, list.empty() || list.replacesStored(),
                  changedPieces(*variable.type, list));
  saveColumns(store, variable, list);
  list.changesSaved();
  return true;
}

// Returns whether the variable had changed.
bool savePlain(Game& game, const Variable& variable) {
  return visitPlain(variable.type->form, memberOf(game.world, variable), [&]<class T>(const T& value) {
    T& stored = *static_cast<T*>(memberOf(game.stored, variable));
    if (value == stored) return false;
    game.store.put(variable.key, toValue(value));
    stored = value;
    return true;
  });
}

// The first save of a career contains all plain variables, including start values, so that other programs
// find them and later builds with other start values load the career unchanged.
void saveStartValues(Game& game) {
  for (const Variable& variable : variables()) {
    if (variable.isList || game.store.contains(variable.key)) continue;
    visitPlain(variable.type->form, memberOf(game.world, variable),
               [&](const auto& value) { game.store.put(variable.key, toValue(value)); });
  }
}

// --- Loading ---

constexpr const char* otherKind = "The stored value is of another kind.";

// Loads one variable and notes what is damaged.
class Loader {
 public:
  Loader(Game& game, const Variable& variable) : game_(game), variable_(variable), damage_{&variable} {}

  Damage load(const SaveStore::Entry& stored) {
    if (variable_.isList) {
      loadList(stored);
    } else {
      loadPlain(stored);
    }
    return damage_;
  }

 private:
  void loadPlain(const SaveStore::Entry& stored);
  void loadList(const SaveStore::Entry& stored);
  void loadPieces(const SaveStore::Entry& stored);
  void loadImported(const Bytes& stored);
  std::expected<void, std::string> addPiece(ListBase& list, std::int64_t number,
                                            std::span<const std::byte> bytes);
  void addUnread(ListBase& list, std::int64_t number, std::size_t count);
  [[nodiscard]] std::size_t unreadIn(const SaveStore::Entry& stored, std::int64_t number) const;
  void loadColumns();
  bool layColumn(const SaveStore::Entry& stored, const FieldType& column, const Stretches& stretches);
  void mendElements();
  [[nodiscard]] std::size_t excessElements();
  bool mendElement(std::size_t index);
  [[nodiscard]] bool hasOwnId(std::size_t index);
  void keepElementAside(std::size_t index);
  void loseWhole(std::string_view why);
  void log(std::string_view why) const { debugLog(std::string(variable_.key) + ": " + std::string(why)); }
  [[nodiscard]] ListBase& list() { return listOf(game_.world, variable_); }

  Game& game_;
  const Variable& variable_;
  Damage damage_;
  std::vector<std::size_t> unread_;       // indexes of elements without a value
  std::unordered_set<std::int64_t> ids_;  // of the records so far
};

// Adds the elements in `bytes` to the list as piece `number`. The error is about the piece as a whole.
std::expected<void, std::string> Loader::addPiece(ListBase& list, std::int64_t number,
                                                  std::span<const std::byte> bytes) {
  struct Target {
    ListBase& list;
    std::int64_t piece;
  };
  Target target{list, number};
  const auto append = [](void* to) -> void* {
    const auto& [appended, piece] = *static_cast<Target*>(to);
    return appended.addLoaded(piece);
  };
  const std::size_t first = list.size();
  const auto decoded = decodeList(bytes, *variable_.type, append, &target);
  if (!decoded) return std::unexpected(describe(decoded.error()));
  for (const UnreadElement& element : *decoded) unread_.push_back(first + element.index);
  damage_.lost += decoded->size();
  if (!decoded->empty()) log(describe(decoded->front().why));
  return {};
}

// Adds elements in the place of a piece that can't be decoded.
void Loader::addUnread(ListBase& list, std::int64_t number, std::size_t count) {
  for (std::size_t index = 0; index < count; ++index) {
    unread_.push_back(list.size());
    list.addLoaded(number);
  }
}

// The number of elements in a piece that can't be decoded: what the other pieces leave of a column's stretch,
// or 1 if the list has no columns.
std::size_t Loader::unreadIn(const SaveStore::Entry& stored, std::int64_t number) const {
  const auto column = std::ranges::find(variable_.type->fields, true, &FieldType::isColumn);
  if (column == variable_.type->fields.end()) return 1;
  const SaveStore::Entry* const columns = game_.store.entry(columnKey(variable_.key, column->name));
  if (columns == nullptr || !columns->pieces.contains(stretchOf(number))) return 1;
  const std::size_t all = elementsIn(columns->pieces.at(stretchOf(number)));
  std::size_t others = 0;
  for (const auto& [other, bytes] : stored.pieces) {
    if (other != number && stretchOf(other) == stretchOf(number)) others += elementsIn(bytes);
  }
  return all > others ? all - others : 1;
}

void Loader::loadPieces(const SaveStore::Entry& stored) {
  ListBase loaded(list().operations());
  for (const auto& [number, bytes] : stored.pieces) {
    const std::size_t unreadBefore = unread_.size();
    if (const auto added = addPiece(loaded, number, bytes); !added) {
      log(added.error());
      const std::size_t count = unreadIn(stored, number);
      addUnread(loaded, number, count);
      damage_.lost += std::max(count, list().operations().pieceLength);
      damage_.isAtMost = true;
    }
    if (unread_.size() > unreadBefore) game_.store.keepAside(variable_.key, number);
  }
  list().takeLoaded(loaded);
}

// Sets a column's values in the loaded records. False if part of the column is damaged.
bool Loader::layColumn(const SaveStore::Entry& stored, const FieldType& column, const Stretches& stretches) {
  if (stored.shape != Shape::column) return false;
  bool fits = true;
  for (const auto& [number, bytes] : stored.pieces) {
    const auto part = stretches.find(number);
    const auto values = part == stretches.end() ? std::nullopt : readStretch(bytes, part->second);
    if (!values) {
      fits = false;
      continue;
    }
    for (std::size_t index = 0; index < values->size(); ++index) {
      auto* const record = static_cast<std::byte*>(list().loadedElement(part->second.first + index));
      visitPlain(column.type->form, record + column.offset, [&]<class T>(T& field) {
        const auto value = valueAs<T>((*values)[index]);
        if (value) field = *value;
        fits = fits && value;
      });
    }
  }
  return fits;
}

// A damaged column loses the values set since the records' pieces were stored, and nothing else.
void Loader::loadColumns() {
  Stretches stretches;
  for (const auto& piece : list().pieces()) tb::addPiece(stretches, piece.piece, piece.first, piece.count);
  for (const FieldType& field : variable_.type->fields) {
    const std::string key = columnKey(variable_.key, field.name);
    const SaveStore::Entry* const stored = field.isColumn ? game_.store.entry(key) : nullptr;
    if (stored == nullptr || layColumn(*stored, field, stretches)) continue;
    game_.store.keepAside(key);
    debugLog(key + ": damaged");
    list().saveWhole();
    damage_.columns += 1;
  }
}

// Loads an imported list, which is one plain value: records in a Data, plain values in an array. It has no
// pieces, so its next save writes all of it.
void Loader::loadImported(const Bytes& stored) {
  ListBase loaded(list().operations());
  std::expected<void, std::string> added;
  if (shapeOf(variable_) == Shape::recordList) {
    const auto value = plist::read(stored);
    if (!value) return loseWhole(plist::describe(value.error()));
    const auto* const data = value->as<plist::Data>();
    if (data == nullptr) return loseWhole(otherKind);
    added = addPiece(loaded, 0, data->bytes);
  } else {
    added = addPiece(loaded, 0, stored);
  }
  if (!added) return loseWhole(added.error());
  if (!unread_.empty()) game_.store.keepAside(variable_.key);
  list().takeLoaded(loaded);
  list().replaceStored();
}

void Loader::loadList(const SaveStore::Entry& stored) {
  if (stored.shape == shapeOf(variable_)) {
    loadPieces(stored);
    loadColumns();
  } else if (stored.shape == Shape::plain) {
    loadImported(stored.pieces.begin()->second);
  } else {
    loseWhole(otherKind);
  }
  mendElements();
}

// Mends the elements that were read, and removes the others: last, because columns have values for them.
void Loader::mendElements() {
  std::vector<std::size_t> gone;
  const std::size_t excess = excessElements();
  damage_.lost += excess;
  for (std::size_t index = 0; index < list().size(); ++index) {
    const bool isUnread = std::ranges::binary_search(unread_, index);
    if (isUnread || index < excess || !mendElement(index)) gone.push_back(index);
  }
  if (!gone.empty()) list().removeLoaded(gone);
}

// Of a history that is longer than any rule makes it, the oldest entries are dropped.
std::size_t Loader::excessElements() {
  const bool isHistory = variable_.type->form == Form::integer || variable_.type->form == Form::real;
  return isHistory && list().size() > longestNumberList ? list().size() - longestNumberList : 0;
}

// Whether the record has an id that no record before it has; true if its records have no ids.
bool Loader::hasOwnId(std::size_t index) {
  const auto field = std::ranges::find(variable_.type->fields, Range::Kind::id,
                                       [](const FieldType& each) { return each.range.kind; });
  if (field == variable_.type->fields.end()) return true;
  const void* const id = static_cast<const std::byte*>(list().element(index)) + field->offset;
  return ids_.insert(*static_cast<const std::int64_t*>(id)).second;
}

// False if the element can't be used; then it is set aside.
bool Loader::mendElement(std::size_t index) {
  const Mending mending = makeLawful(*variable_.type, variable_.range, list().loadedElement(index));
  if (mending.mended > 0) list().markMended(index);
  if (mending.isPossible && hasOwnId(index)) {
    damage_.mended += mending.mended;
    return true;
  }
  damage_.impossible += 1;
  keepElementAside(index);
  return false;
}

void Loader::keepElementAside(std::size_t index) {
  const SaveStore::Entry& stored = *game_.store.entry(variable_.key);
  const bool hasPieces = stored.shape != Shape::plain && !list().replacesStored();
  if (hasPieces) {
    game_.store.keepAside(variable_.key, list().pieceAt(index));
  } else {
    game_.store.keepAside(variable_.key);
  }
}

void Loader::loadPlain(const SaveStore::Entry& stored) {
  if (stored.shape != Shape::plain) return loseWhole(otherKind);
  const auto held = plist::read(stored.pieces.begin()->second);
  if (!held) return loseWhole(plist::describe(held.error()));
  visitPlain(variable_.type->form, memberOf(game_.world, variable_), [&]<class T>(T& value) {
    auto read = valueAs<T>(*held);
    if (!read) return loseWhole(otherKind);
    value = *std::move(read);
    *static_cast<T*>(memberOf(game_.stored, variable_)) = value;
    damage_.mended = makeLawful(*variable_.type, variable_.range, &value).mended;
  });
}

// The value can't be read at all: the variable stays as it is.
void Loader::loseWhole(std::string_view why) {
  log(why);
  damage_.isWhole = true;
  game_.store.keepAside(variable_.key);
  if (variable_.isList) return list().saveWhole();
  visitPlain(variable_.type->form, memberOf(game_.world, variable_), [&]<class T>(const T& value) {
    game_.store.put(variable_.key, toValue(value));
    *static_cast<T*>(memberOf(game_.stored, variable_)) = value;
  });
}

}  // namespace

Damage loadVariable(Game& game, const Variable& variable) {
  const SaveStore::Entry* const stored = game.store.entry(variable.key);
  return stored == nullptr ? Damage{&variable} : Loader(game, variable).load(*stored);
}

Damage cutParallel(Game& game, const Variable& variable) {
  const auto other = std::ranges::find(variables(), variable.range.parallel, &Variable::key);
  Damage damage{&variable};
  const std::size_t length = std::min(listOf(game.world, variable).size(), listOf(game.world, *other).size());
  for (const Variable* const row : {&variable, &*other}) {
    ListBase& list = listOf(game.world, *row);
    damage.lost += list.size() - length;
    std::vector<std::size_t> gone;
    for (std::size_t index = length; index < list.size(); ++index) gone.push_back(index);
    if (!gone.empty()) list.removeLoaded(gone);
  }
  return damage;
}

bool saveChanges(Game& game) {
  const bool isFirst = !game.store.contains("enterPlayerDetails");  // no career, whatever the bank has
  bool any = false;
  for (const Variable& variable : variables()) {
    const bool saved = variable.isList ? saveList(game.store, variable, listOf(game.world, variable))
                                       : savePlain(game, variable);
    any = any || saved;
  }
  if (any && isFirst) saveStartValues(game);
  return any;
}

}  // namespace tb
