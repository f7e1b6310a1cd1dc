#include "core/list.h"

#include <algorithm>

namespace tb {

ListBase::ListBase(const ListBase& other) : operations_(other.operations_) { copyElements(other); }

ListBase& ListBase::operator=(const ListBase& other) {
  if (this != &other) {
    destroyElements();
    copyElements(other);
  }
  return *this;
}

ListBase::~ListBase() { destroyElements(); }

void ListBase::copyElements(const ListBase& other) {
  for (const Slot& slot : other.slots_) slots_.push_back({operations_->copy(slot.element), 0});
  replaceStored();
}

void ListBase::destroyElements() {
  for (const Slot& slot : slots_) operations_->destroy(slot.element);
  slots_.clear();
}

ListBase::Piece& ListBase::pieceOf(std::int64_t number) {
  return *std::ranges::lower_bound(pieces_, number, {}, &Piece::number);
}

void* ListBase::editSlot(std::size_t index) {
  const Slot& slot = slots_[index];
  pieceOf(slot.piece).changed = true;
  return slot.element;
}

void ListBase::pushBack(void* element) {
  if (pieces_.empty()) {
    pieces_.push_back({.number = 0});
  } else if (pieces_.back().count >= pieceLength) {
    pieces_.push_back({.number = pieces_.back().number + 1});
  }
  Piece& piece = pieces_.back();
  slots_.push_back({element, piece.number});
  piece.count += 1;
  piece.changed = true;
}

void ListBase::pushFront(void* element) {
  if (pieces_.empty()) {
    pieces_.push_front({.number = 0});
  } else if (pieces_.front().count >= pieceLength) {
    pieces_.push_front({.number = pieces_.front().number - 1});
  }
  Piece& piece = pieces_.front();
  slots_.push_front({element, piece.number});
  piece.count += 1;
  piece.changed = true;
}

void ListBase::leaveOut(std::size_t from) {
  Piece& piece = pieceOf(slots_[from].piece);
  piece.count -= 1;
  piece.changed = true;
  operations_->destroy(slots_[from].element);
}

void ListBase::cut(std::size_t length) {
  slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(length), slots_.end());
}

void ListBase::erase_at(std::size_t index) {
  leaveOut(index);
  slots_.erase(slots_.begin() + static_cast<std::ptrdiff_t>(index));
}

void ListBase::clear() {
  destroyElements();
  replaceStored();
}

void ListBase::takeElements(ListBase& other) {
  slots_.swap(other.slots_);
  replaceStored();
}

std::vector<ListBase::Change> ListBase::changes() const {
  std::vector<Change> changed;
  std::size_t first = 0;
  for (const Piece& piece : pieces_) {
    if (piece.changed) changed.push_back({piece.number, first, piece.count});
    first += piece.count;
  }
  return changed;
}

void ListBase::changesSaved() {
  replaces_stored_ = false;
  std::erase_if(pieces_, [](const Piece& piece) { return piece.count == 0; });
  for (Piece& piece : pieces_) piece.changed = false;
}

void ListBase::replaceStored() {
  replaces_stored_ = true;
  pieces_.clear();
  for (std::size_t index = 0; index < slots_.size(); ++index) {
    const auto number = static_cast<std::int64_t>(index / pieceLength);
    if (index % pieceLength == 0) pieces_.push_back({.number = number, .changed = true});
    pieces_.back().count += 1;
    slots_[index].piece = number;
  }
}

void* ListBase::addLoaded(std::int64_t piece) {
  if (pieces_.empty() || pieces_.back().number != piece) pieces_.push_back({.number = piece});
  pieces_.back().count += 1;
  return slots_.emplace_back(operations_->make(), piece).element;
}

void ListBase::takeLoaded(ListBase& loaded) {
  slots_.swap(loaded.slots_);
  pieces_.swap(loaded.pieces_);
  replaces_stored_ = false;
}

}  // namespace tb
