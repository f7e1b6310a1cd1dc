#include "core/list.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace tb {

ListBase::ListBase(const ListBase& other) : operations_(other.operations_) { copyElements(other); }

ListBase& ListBase::operator=(const ListBase& other) {
  if (this == &other) return *this;
  destroyElements();
  copyElements(other);
  changed_ = true;
  return *this;
}

ListBase::~ListBase() { destroyElements(); }

void ListBase::copyElements(const ListBase& other) {
  for (const Slot& slot : other.slots_) slots_.push_back({operations_->copy(slot.element), slot.piece});
  pieces_ = other.pieces_;
  std::erase_if(pieces_, [](const Piece& piece) { return piece.count == 0; });
  for (Piece& piece : pieces_) piece.changed = true;
  replaces_stored_ = true;
  changed_ = changed_ || !empty();
}

void ListBase::destroyElements() {
  ids_ = {};
  for (const Slot& slot : slots_) operations_->destroy(slot.element);
  slots_.clear();
}

ListBase::Piece& ListBase::pieceOf(std::int64_t number) {
  return *std::ranges::lower_bound(pieces_, number, {}, &Piece::number);
}

void* ListBase::editSlot(std::size_t index) {
  const Slot& slot = slots_[index];
  pieceOf(slot.piece).changed = true;
  changed_ = true;
  return slot.element;
}

void* ListBase::setField(std::size_t index, std::size_t field) {
  const Slot& slot = slots_[index];
  pieceOf(slot.piece).fieldsSet = true;
  if (!std::ranges::contains(fields_set_, field)) fields_set_.push_back(field);
  changed_ = true;
  return slot.element;
}

void ListBase::pushBack(void* element) {
  if (pieces_.empty()) {
    pieces_.push_back({.number = 0});
  } else if (pieces_.back().count >= operations_->pieceLength) {
    pieces_.push_back({.number = pieces_.back().number + 1});
  }
  Piece& piece = pieces_.back();
  slots_.push_back({element, piece.number});
  piece.count += 1;
  piece.changed = true;
  changed_ = true;
}

void ListBase::pushFront(void* element) {
  if (pieces_.empty()) {
    pieces_.push_front({.number = 0});
  } else if (pieces_.front().count >= operations_->pieceLength) {
    pieces_.push_front({.number = pieces_.front().number - 1});
  }
  Piece& piece = pieces_.front();
  slots_.push_front({element, piece.number});
  ids_ = {};
  piece.count += 1;
  piece.changed = true;
  changed_ = true;
}

void ListBase::leaveOut(std::size_t from) {
  ids_ = {};
  Piece& piece = pieceOf(slots_[from].piece);
  piece.count -= 1;
  piece.changed = true;
  changed_ = true;
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
  if (empty()) return;
  destroyElements();
  replaceStored();
  changed_ = true;
}

void ListBase::takeElements(ListBase& other) {
  slots_.swap(other.slots_);
  ids_ = {};
  replaceStored();
  changed_ = true;
}

// --- Finding by id ---

std::int64_t ListBase::idAt(std::size_t field, std::size_t index) const {
  std::int64_t id = 0;
  std::memcpy(&id, static_cast<const std::byte*>(slots_[index].element) + field, sizeof id);
  return id;
}

// Ids are counts, so their low bits spread them over the buckets.
std::size_t ListBase::bucketOf(std::int64_t id) const {
  return static_cast<std::size_t>(id) & (ids_.first.size() - 1);
}

// Extends the index to the end of the list.
void ListBase::indexIds(std::size_t field) const {
  constexpr std::size_t leastBuckets = 64;
  if (ids_.field != field || ids_.first.empty() || ids_.first.size() < size()) {
    const std::size_t buckets = std::max(leastBuckets, std::bit_ceil(2 * size()));
    const std::vector<std::uint32_t> empty(buckets, IdIndex::none);
    ids_ = {.field = field, .first = empty, .last = empty, .next = {}, .ids = {}};
  }
  for (std::size_t index = ids_.next.size(); index < size(); ++index) {
    const std::int64_t id = idAt(field, index);
    const std::size_t bucket = bucketOf(id);
    const auto here = static_cast<std::uint32_t>(index);
    if (ids_.last[bucket] == IdIndex::none) {
      ids_.first[bucket] = here;
    } else {
      ids_.next[ids_.last[bucket]] = here;
    }
    ids_.last[bucket] = here;
    ids_.next.push_back(IdIndex::none);
    ids_.ids.push_back(id);
  }
}

// The element with this id in a bucket, starting with element `from`.
std::optional<std::size_t> ListBase::inBucket(std::uint32_t from, std::int64_t id) const {
  for (std::uint32_t at = from; at != IdIndex::none; at = ids_.next[at]) {
    if (ids_.ids[at] == id) return at;
  }
  return std::nullopt;
}

std::optional<std::size_t> ListBase::firstWithId(std::size_t field, std::int64_t id) const {
  indexIds(field);
  return inBucket(ids_.first[bucketOf(id)], id);
}

std::optional<std::size_t> ListBase::nextWithId(std::size_t field, std::size_t index) const {
  indexIds(field);
  return inBucket(ids_.next[index], ids_.ids[index]);
}

// --- For saving and loading ---

std::vector<ListBase::PieceState> ListBase::pieces() const {
  std::vector<PieceState> states;
  states.reserve(pieces_.size());
  std::size_t first = 0;
  for (const Piece& piece : pieces_) {
    states.push_back({piece.number, first, piece.count, piece.changed, piece.fieldsSet});
    first += piece.count;
  }
  return states;
}

void ListBase::changesSaved() {
  replaces_stored_ = false;
  changed_ = false;
  fields_set_.clear();
  std::erase_if(pieces_, [](const Piece& piece) { return piece.count == 0; });
  for (Piece& piece : pieces_) piece.changed = piece.fieldsSet = false;
}

void ListBase::replaceStored() {
  replaces_stored_ = true;
  pieces_.clear();
  const std::size_t length = operations_->pieceLength;
  for (std::size_t index = 0; index < slots_.size(); ++index) {
    const auto number = static_cast<std::int64_t>(index / length);
    if (index % length == 0) pieces_.push_back({.number = number, .changed = true});
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
  ids_ = {};
  pieces_.swap(loaded.pieces_);
  replaces_stored_ = false;
  changed_ = false;
}

void ListBase::removeLoaded(const std::vector<std::size_t>& indexes) {
  auto next = indexes.begin();
  std::size_t kept = 0;
  for (std::size_t index = 0; index < slots_.size(); ++index) {
    if (next != indexes.end() && *next == index) {
      leaveOut(index);
      ++next;
    } else {
      moveSlot(index, kept++);
    }
  }
  cut(kept);
}

}  // namespace tb
