#include "core/save.h"

#include <cstddef>
#include <expected>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/columns.h"
#include "core/debug_log.h"
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

// The result of loading: nothing, or why the variable was not loaded, for the debug log.
using LoadFailure = std::optional<std::string>;

constexpr const char* otherKind = "The stored value is of another kind.";

// Adds the elements in `bytes` to the list as piece `number`.
LoadFailure addPiece(const Variable& variable, ListBase& list, std::int64_t number,
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
  const auto decoded = decodeList(bytes, *variable.type, append, &target);
  return decoded ? std::nullopt : LoadFailure(describe(decoded.error()));
}

// Loads the stored pieces, all or none.
LoadFailure loadPieces(const Variable& variable, const SaveStore::Entry& stored, ListBase& list) {
  ListBase loaded(list.operations());
  for (const auto& [number, bytes] : stored.pieces) {
    if (LoadFailure failure = addPiece(variable, loaded, number, bytes)) return failure;
  }
  list.takeLoaded(loaded);
  return std::nullopt;
}

// Sets a column's values in the loaded records. False if part of the column is damaged.
bool layColumn(const SaveStore::Entry& stored, const FieldType& column, const Stretches& stretches,
               ListBase& list) {
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
      auto* const record = static_cast<std::byte*>(list.loadedElement(part->second.first + index));
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
void loadColumns(SaveStore& store, const Variable& variable, ListBase& list) {
  Stretches stretches;
  for (const auto& piece : list.pieces()) addPiece(stretches, piece.piece, piece.first, piece.count);
  for (const FieldType& field : variable.type->fields) {
    const std::string key = columnKey(variable.key, field.name);
    const SaveStore::Entry* const stored = field.isColumn ? store.entry(key) : nullptr;
    if (stored == nullptr || layColumn(*stored, field, stretches, list)) continue;
    store.keepAside(key);
    debugLog(key + ": damaged");
    list.replaceStored();  // the next save repairs it
  }
}

// Loads an imported list, which is one plain value: records in a Data, plain values in an array. It has no
// pieces, so its next save writes all of it.
LoadFailure loadImported(const Variable& variable, const Bytes& stored, ListBase& list) {
  ListBase loaded(list.operations());
  LoadFailure failure;
  if (shapeOf(variable) == Shape::recordList) {
    const auto value = plist::read(stored);
    if (!value) return std::string(plist::describe(value.error()));
    const auto* const data = value->as<plist::Data>();
    if (data == nullptr) return otherKind;
    failure = addPiece(variable, loaded, 0, data->bytes);
  } else {
    failure = addPiece(variable, loaded, 0, stored);
  }
  if (failure) return failure;
  list.takeLoaded(loaded);
  list.replaceStored();
  return std::nullopt;
}

LoadFailure loadList(SaveStore& store, const Variable& variable, const SaveStore::Entry& stored,
                     ListBase& list) {
  LoadFailure failure = otherKind;
  if (stored.shape == shapeOf(variable)) {
    failure = loadPieces(variable, stored, list);
    if (!failure) loadColumns(store, variable, list);
  }
  if (stored.shape == Shape::plain) failure = loadImported(variable, stored.pieces.begin()->second, list);
  if (failure) list.replaceStored();  // the next save must replace the unreadable data
  return failure;
}

LoadFailure loadPlain(Game& game, const Variable& variable, const SaveStore::Entry& stored) {
  if (stored.shape != Shape::plain) return otherKind;
  const auto held = plist::read(stored.pieces.begin()->second);
  if (!held) return std::string(plist::describe(held.error()));
  return visitPlain(variable.type->form, memberOf(game.world, variable),
                    [&]<class T>(T& value) -> LoadFailure {
                      auto read = valueAs<T>(*held);
                      if (!read) return otherKind;
                      value = *std::move(read);
                      *static_cast<T*>(memberOf(game.stored, variable)) = value;
                      return std::nullopt;
                    });
}

}  // namespace

// Unreadable data is set aside, not lost.
void loadVariable(Game& game, const Variable& variable) {
  const SaveStore::Entry* const stored = game.store.entry(variable.key);
  if (stored == nullptr) return;
  const LoadFailure failure = variable.isList
                                  ? loadList(game.store, variable, *stored, listOf(game.world, variable))
                                  : loadPlain(game, variable, *stored);
  if (!failure) return;
  game.store.keepAside(variable.key);
  debugLog(std::string(variable.key) + ": " + *failure);
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
