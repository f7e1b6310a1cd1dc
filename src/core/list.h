#pragma once

// A persisted list: a sequence that records which of its parts changed since it was last saved.
//
// A career's lists grow for decades while a week changes few elements. So the elements are grouped into
// pieces of up to pieceLengthOf<T>; the store has one entry per piece, and saving writes only changed pieces.
// Elements can be read like those of any sequence, but are changed through edit(), set(), the push and erase
// functions and assign() only, so that every change is recorded.
//
// Piece numbers ascend from front to back, with gaps for emptied pieces. A piece's number never changes,
// because a list grows only at its ends.
//
// An element keeps its address until it is erased.

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace tb {

// The offset of a field in a record, in bytes.
template <class Record, class Field>
[[nodiscard]] std::size_t offsetOf(const Record& record, Field Record::* field) {
  return static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&(record.*field)) -
                                  reinterpret_cast<const std::byte*>(&record));
}

// A hash table from ids to elements. It is extended when elements are added at the end, and cleared by
// anything else that moves elements.
struct IdIndex {
  static constexpr std::uint32_t none = ~std::uint32_t{0};

  std::size_t field = 0;             // offset of the id in an element, in bytes
  std::vector<std::uint32_t> first;  // by bucket: its first element, or `none`; the size is a power of 2
  std::vector<std::uint32_t> last;   // by bucket: its last element so far
  std::vector<std::uint32_t> next;   // by element: the next one in its bucket, or `none`
  std::vector<std::int64_t> ids;  // by element, so that a search reads no other element than the one it finds
};

// The number of elements in a full piece. Records that change in the middle of their list have short pieces.
// Plain values only change at the ends of their lists, and so do records that declare a `pieceLength`: long
// pieces load faster, because each is an entry of the store and repeats the names of the fields.
template <class T>
inline constexpr std::size_t pieceLengthOf = [] {
  if constexpr (requires { T::pieceLength; }) {
    return T::pieceLength;
  } else {
    return std::is_aggregate_v<T> ? std::size_t{8} : std::size_t{64};
  }
}();

// The part of a list that does not depend on the element type. Compiling it once saves a quarter of the
// page's program.
class ListBase {
 public:
  // A piece and the range of its elements. A count of 0 means that the piece was removed.
  struct PieceState {
    std::int64_t piece;
    std::size_t first;
    std::size_t count;
    bool changed;    // by edit(), or elements were added or removed
    bool fieldsSet;  // by set()
  };

  // Creates and destroys elements of the list's type.
  struct ElementOperations {
    std::size_t pieceLength;
    void* (*make)();
    void* (*copy)(const void* element);
    void (*destroy)(void* element);
  };

  explicit ListBase(const ElementOperations& operations) : operations_(&operations) {}
  // A copy counts as changed and is saved completely, with the same pieces as its source. The same holds for
  // a moved list, so there is no separate move: pieces belong to the key they are stored under.
  ListBase(const ListBase& other);
  ListBase& operator=(const ListBase& other);
  ~ListBase();

  [[nodiscard]] std::size_t size() const { return slots_.size(); }
  [[nodiscard]] bool empty() const { return slots_.empty(); }

  void erase_at(std::size_t index);
  void pop_front() { erase_at(0); }
  void pop_back() { erase_at(size() - 1); }
  void clear();

  // The index of the first element whose integer at offset `field` is `id`, and of the next one after
  // `index`; nothing when there is none. Takes constant time. An id must not change while its element is in
  // the list. Used by core/find.h.
  [[nodiscard]] std::optional<std::size_t> firstWithId(std::size_t field, std::int64_t id) const;
  [[nodiscard]] std::optional<std::size_t> nextWithId(std::size_t field, std::size_t index) const;

  // --- For saving and loading (core/save.h) only ---

  [[nodiscard]] const void* element(std::size_t index) const { return slots_[index].element; }
  [[nodiscard]] const ElementOperations& operations() const { return *operations_; }

  // True when all stored pieces must be removed before the changes are stored, because the whole list was
  // replaced or the stored data could not be read.
  [[nodiscard]] bool replacesStored() const { return replaces_stored_; }

  // Whether the list changed since it was loaded or last saved.
  [[nodiscard]] bool changed() const { return changed_; }

  // All pieces, front to back, with their changes since changesSaved().
  [[nodiscard]] std::vector<PieceState> pieces() const;
  // The fields that set() changed since then, by offset in an element in bytes.
  [[nodiscard]] const std::vector<std::size_t>& fieldsSet() const { return fields_set_; }
  void changesSaved();

  // Splits the list into new pieces, which replace the stored ones.
  void replaceStored();

  // Adds an element at the end, in the stored piece `piece`. Pieces must be added in ascending order.
  void* addLoaded(std::int64_t piece);

  // The element at `index`, for loading. Does not mark it as changed.
  [[nodiscard]] void* loadedElement(std::size_t index) { return slots_[index].element; }

  // Moves the elements and pieces of a list that was filled by addLoaded(), as unchanged.
  void takeLoaded(ListBase& loaded);

  // Lets the next save write the whole list, because the stored data could not be read.
  void saveWhole() {
    replaceStored();
    changed_ = true;
  }

  [[nodiscard]] std::int64_t pieceAt(std::size_t index) const { return slots_[index].piece; }

  // Marks the piece of a loaded element as changed, because the element was mended.
  void markMended(std::size_t index) { editSlot(index); }

  // Removes the elements at these ascending indexes.
  void removeLoaded(const std::vector<std::size_t>& indexes);

 protected:
  struct Slot {
    void* element;
    std::int64_t piece;
  };
  using Slots = std::deque<Slot>;

  [[nodiscard]] const Slots& slots() const { return slots_; }
  void* editSlot(std::size_t index);
  void* setField(std::size_t index, std::size_t field);
  void pushBack(void* element);
  void pushFront(void* element);
  void takeElements(ListBase& other);

  // For erase_if(): removes the element at `from`, or moves it to `to` (not after `from`); cut() then
  // truncates the list.
  void leaveOut(std::size_t from);
  void moveSlot(std::size_t from, std::size_t to) { slots_[to] = slots_[from]; }
  void cut(std::size_t length);

 private:
  struct Piece {
    std::int64_t number = 0;
    std::size_t count = 0;
    bool changed = false;
    bool fieldsSet = false;
  };

  Piece& pieceOf(std::int64_t number);
  [[nodiscard]] std::int64_t idAt(std::size_t field, std::size_t index) const;
  void indexIds(std::size_t field) const;
  [[nodiscard]] std::size_t bucketOf(std::int64_t id) const;
  [[nodiscard]] std::optional<std::size_t> inBucket(std::uint32_t from, std::int64_t id) const;
  void copyElements(const ListBase& other);
  void destroyElements();

  const ElementOperations* operations_;
  Slots slots_;
  std::deque<Piece> pieces_;  // by ascending number
  mutable IdIndex ids_;
  std::vector<std::size_t> fields_set_;
  bool changed_ = false;
  bool replaces_stored_ = true;
};

template <class T>
class List : public ListBase {
 public:
  using value_type = T;

  class const_iterator {
   public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = const T*;
    using reference = const T&;

    const_iterator() = default;

    reference operator*() const { return *static_cast<pointer>(slot_->element); }
    pointer operator->() const { return static_cast<pointer>(slot_->element); }
    reference operator[](difference_type distance) const { return *(*this + distance); }

    const_iterator& operator+=(difference_type distance) {
      slot_ += distance;
      return *this;
    }
    const_iterator& operator-=(difference_type distance) { return *this += -distance; }
    const_iterator& operator++() { return *this += 1; }
    const_iterator& operator--() { return *this += -1; }
    const_iterator operator++(int) { return std::exchange(*this, *this + 1); }
    const_iterator operator--(int) { return std::exchange(*this, *this - 1); }

    friend const_iterator operator+(const_iterator from, difference_type distance) {
      return from += distance;
    }
    friend const_iterator operator+(difference_type distance, const_iterator from) {
      return from += distance;
    }
    friend const_iterator operator-(const_iterator from, difference_type distance) {
      return from -= distance;
    }
    friend difference_type operator-(const const_iterator& to, const const_iterator& from) {
      return to.slot_ - from.slot_;
    }
    bool operator==(const const_iterator&) const = default;
    auto operator<=>(const const_iterator&) const = default;

   private:
    friend class List;
    explicit const_iterator(Slots::const_iterator slot) : slot_(slot) {}

    Slots::const_iterator slot_;
  };

  List() : ListBase(operationsOfType) {}
  List(std::initializer_list<T> values) : List() {
    for (const T& value : values) push_back(value);
  }

  [[nodiscard]] const T& operator[](std::size_t index) const {
    return *static_cast<const T*>(element(index));
  }
  [[nodiscard]] const T& front() const { return (*this)[0]; }
  [[nodiscard]] const T& back() const { return (*this)[size() - 1]; }
  [[nodiscard]] const_iterator begin() const { return const_iterator(slots().begin()); }
  [[nodiscard]] const_iterator end() const { return const_iterator(slots().end()); }
  bool operator==(const List& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }

  // The element at `index` for modification. Marks its piece as changed.
  T& edit(std::size_t index) { return *static_cast<T*>(editSlot(index)); }

  // Sets a field of the element at `index`. If the field is a column (core/columns.h), only that column is
  // saved, not the element's piece.
  template <class Record, class Field>
  void set(std::size_t index, Field Record::* field, const std::type_identity_t<Field>& value) {
    const std::size_t offset = offsetOf((*this)[index], field);
    static_cast<Record*>(setField(index, offset))->*field = value;
  }

  void push_back(T value) { pushBack(new T(std::move(value))); }
  void push_front(T value) { pushFront(new T(std::move(value))); }

  // Removes all elements that satisfy `condition` and returns their number.
  template <class Condition>
  std::size_t erase_if(Condition condition) {
    const std::size_t before = size();
    std::size_t kept = 0;
    for (std::size_t index = 0; index < before; ++index) {
      if (condition((*this)[index])) {
        leaveOut(index);
      } else {
        moveSlot(index, kept);
        kept += 1;
      }
    }
    cut(kept);
    return before - kept;
  }

  // Replaces the elements by those of a range, which may be a view of this list.
  template <class Range>
  void assign(Range&& values) {
    List taken;
    for (auto&& value : values) taken.push_back(std::forward<decltype(value)>(value));
    takeElements(taken);
  }

 private:
  static constexpr ElementOperations operationsOfType{
      .pieceLength = pieceLengthOf<T>,
      .make = []() -> void* { return new T(); },
      .copy = [](const void* element) -> void* { return new T(*static_cast<const T*>(element)); },
      .destroy = [](void* element) { delete static_cast<T*>(element); }};
};

}  // namespace tb
