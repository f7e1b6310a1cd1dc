#pragma once

// Writes a binary property list object by object.
//
// Equal values become one object in the file: field names, titles and small numbers are stored once. Only
// recent numbers are remembered: most amounts of money occur once in a list, and looking each up among all
// others would cost more than an occasional second copy. Encoding a list takes time linear in its length.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "core/property_list.h"

namespace tb::plist {

class Writer {
 public:
  // An object's number in the file. 32 bits are enough for any list that fits in memory.
  using Reference = std::uint32_t;

  Writer();

  Reference boolean(bool value);
  Reference integer(std::int64_t value);
  Reference real(double value);
  Reference date(Date value);
  Reference data(std::span<const std::byte> bytes);
  // `utf8` as plist::write takes it.
  Reference text(std::string_view utf8);

  // An array or dictionary is made from what was put aside since mark(): the elements of an array, or all
  // keys and then all values of a dictionary, in the same order. Nested containers are finished first.
  [[nodiscard]] std::size_t mark() const { return aside_.size(); }
  void putAside(Reference object) { aside_.push_back(object); }
  Reference array(std::size_t mark);
  Reference dictionary(std::size_t mark);

  // Returns the file. The writer must not be used afterwards.
  [[nodiscard]] Bytes finish(Reference root);

 private:
  struct Container {
    Reference object;
    std::uint32_t references;
    std::uint8_t marker;
  };
  struct Slot {
    std::uint32_t hash;
    Reference object;
  };
  struct Number {
    std::uint64_t bits;
    Reference object;
  };
  // A hash table of recently added numbers; a new number replaces the one in its slot.
  using RecentNumbers = std::array<Number, 1024>;

  std::byte* grow(std::size_t size);
  void writeNumber(std::uint8_t marker, std::uint64_t bits, std::size_t size);
  Reference number(RecentNumbers& recent, std::uint8_t marker, std::uint64_t bits, std::size_t size);
  void writeCount(std::uint8_t marker, std::uint64_t count);
  Reference uniqueScalar(std::size_t start);
  void growTable();
  Reference container(std::uint8_t marker, std::size_t mark);
  [[nodiscard]] std::size_t containersSizeAtMost(std::size_t referenceSize) const;
  void writeContainers(std::size_t referenceSize);

  Bytes file_;
  std::vector<std::size_t> offsets_;  // by object number; those of containers are set in finish()
  RecentNumbers integers_;
  RecentNumbers reals_;
  std::vector<Slot> table_;  // hash table of all other scalars by their bytes; the size is a power of 2 and
                             // at most half is used
  std::size_t in_table_ = 0;
  std::vector<Container> containers_;
  std::vector<Reference> references_;  // of all containers, in sequence
  std::vector<Reference> aside_;
};

}  // namespace tb::plist
