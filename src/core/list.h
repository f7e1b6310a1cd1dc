#pragma once

// A persisted list: a sequence that knows which of its parts changed since it was last saved.
//
// A career's lists grow for decades while a week touches a handful of their elements. The elements are
// therefore grouped into pieces of up to pieceLength neighbours; the save file keeps each piece on its own
// and a write stores the changed pieces only. Reading is that of any sequence; writing goes through edit(),
// the push and erase functions and assign(), so that no change is ever missed.
//
// Piece numbers rise from front to back, with gaps where a piece lost its last element. The number of a piece
// never changes: a list grows at its two ends only.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tb {

namespace detail {

// A group of neighbours in a list. Outside of the template, so that the lists of all record types share one
// set of functions for it: dozens of sets were a fifth of the page's download.
struct ListPiece {
  std::int64_t number = 0;
  std::size_t count = 0;
  bool changed = false;
};

}  // namespace detail

template <class T>
class List {
 public:
  using value_type = T;
  using const_iterator = typename std::deque<T>::const_iterator;

  static constexpr std::size_t pieceLength = 32;

  // One changed piece: where its elements stand now. A count of 0 says that the piece is gone.
  struct Change {
    std::int64_t piece;
    std::size_t first;
    std::size_t count;
  };

  // A copy is new to the store, wherever it came from: it is saved whole. So is a list that is moved into,
  // which is why there is no move of its own: pieces belong to the key that they are stored under.
  List() = default;
  List(std::initializer_list<T> values) : items_(values) { saveWhole(); }
  List(const List& other) : items_(other.items_) { saveWhole(); }
  List& operator=(const List& other) {
    if (this != &other) {
      items_ = other.items_;
      saveWhole();
    }
    return *this;
  }
  ~List() = default;

  [[nodiscard]] std::size_t size() const { return items_.size(); }
  [[nodiscard]] bool empty() const { return items_.empty(); }
  [[nodiscard]] const T& operator[](std::size_t index) const { return items_[index]; }
  [[nodiscard]] const T& front() const { return items_.front(); }
  [[nodiscard]] const T& back() const { return items_.back(); }
  [[nodiscard]] const_iterator begin() const { return items_.begin(); }
  [[nodiscard]] const_iterator end() const { return items_.end(); }
  bool operator==(const List& other) const { return items_ == other.items_; }

  // The element at `index`, to be changed. Its piece will be saved again.
  T& edit(std::size_t index) {
    pieceOf(pieces_of_items_[index]).changed = true;
    return items_[index];
  }

  void push_back(T value) {
    if (pieces_.empty()) {
      pieces_.push_back({.number = 0});
    } else if (pieces_.back().count >= pieceLength) {
      pieces_.push_back({.number = pieces_.back().number + 1});
    }
    items_.push_back(std::move(value));
    pieces_of_items_.push_back(pieces_.back().number);
    pieces_.back().count += 1;
    pieces_.back().changed = true;
  }

  void push_front(T value) {
    if (pieces_.empty()) {
      pieces_.push_front({.number = 0});
    } else if (pieces_.front().count >= pieceLength) {
      pieces_.push_front({.number = pieces_.front().number - 1});
    }
    items_.push_front(std::move(value));
    pieces_of_items_.push_front(pieces_.front().number);
    pieces_.front().count += 1;
    pieces_.front().changed = true;
  }

  void erase_at(std::size_t index) {
    Piece& piece = pieceOf(pieces_of_items_[index]);
    piece.count -= 1;
    piece.changed = true;
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    pieces_of_items_.erase(pieces_of_items_.begin() + static_cast<std::ptrdiff_t>(index));
  }

  void pop_front() { erase_at(0); }
  void pop_back() { erase_at(size() - 1); }

  // Removes every element of which `condition` holds; says how many.
  template <class Condition>
  std::size_t erase_if(Condition condition) {
    const std::size_t before = size();
    std::size_t kept = 0;
    for (std::size_t index = 0; index < before; ++index) {
      if (condition(std::as_const(items_[index]))) {
        Piece& piece = pieceOf(pieces_of_items_[index]);
        piece.count -= 1;
        piece.changed = true;
        continue;
      }
      if (kept != index) {
        items_[kept] = std::move(items_[index]);
        pieces_of_items_[kept] = pieces_of_items_[index];
      }
      kept += 1;
    }
    const auto end_of_kept = static_cast<std::ptrdiff_t>(kept);
    items_.erase(items_.begin() + end_of_kept, items_.end());
    pieces_of_items_.erase(pieces_of_items_.begin() + end_of_kept, pieces_of_items_.end());
    return before - kept;
  }

  void clear() {
    items_.clear();
    saveWhole();
  }

  // Takes over the elements of any range, a part or a view of this very list included.
  template <class Range>
  void assign(Range&& values) {
    std::deque<T> items;
    for (auto&& value : values) items.push_back(std::forward<decltype(value)>(value));
    items_ = std::move(items);
    saveWhole();
  }

  // --- For saving and loading (core/save.h); rules have no use for what follows. ---

  // True when every stored piece of this list has to be forgotten before the changes are stored: the list
  // was replaced as a whole, or what the store holds could not be read.
  [[nodiscard]] bool replacesStored() const { return replaces_stored_; }

  // The pieces that changed since changesSaved(), front to back. An empty list that replaces the stored one
  // has no changes.
  [[nodiscard]] std::vector<Change> changes() const {
    std::vector<Change> changed;
    std::size_t first = 0;
    for (const Piece& piece : pieces_) {
      if (piece.changed) changed.push_back({piece.number, first, piece.count});
      first += piece.count;
    }
    return changed;
  }

  void changesSaved() {
    replaces_stored_ = false;
    std::erase_if(pieces_, [](const Piece& piece) { return piece.count == 0; });
    for (Piece& piece : pieces_) piece.changed = false;
  }

  // Cuts the list into fresh pieces, which replace whatever the store holds.
  void saveWhole() {
    replaces_stored_ = true;
    pieces_.clear();
    pieces_of_items_.clear();
    std::int64_t number = 0;
    for (std::size_t done = 0; done < items_.size(); done += pieceLength) {
      const std::size_t count = std::min(pieceLength, items_.size() - done);
      pieces_.push_back({.number = number, .count = count, .changed = true});
      pieces_of_items_.insert(pieces_of_items_.end(), count, number);
      number += 1;
    }
  }

  // Takes over what the store holds: elements of piece `number`, which must come in rising order.
  void startLoading() {
    clear();
    replaces_stored_ = false;
  }
  void loadPiece(std::int64_t number, std::vector<T> elements) {
    if (elements.empty()) return;
    pieces_.push_back({.number = number, .count = elements.size()});
    pieces_of_items_.insert(pieces_of_items_.end(), elements.size(), number);
    for (T& element : elements) items_.push_back(std::move(element));
  }

 private:
  using Piece = detail::ListPiece;

  Piece& pieceOf(std::int64_t number) {
    return *std::ranges::lower_bound(pieces_, number, {}, &Piece::number);
  }

  std::deque<T> items_;
  std::deque<std::int64_t> pieces_of_items_;  // in step with items_: the piece that each element is in
  std::deque<Piece> pieces_;                  // by rising number
  bool replaces_stored_ = true;
};

}  // namespace tb
