#pragma once

// Writes a binary property list object by object, for values and for records alike.
//
// What is added twice is one object in the file, as every writer of the format does it: names of fields,
// titles and small numbers are stored once. Numbers are remembered for a while only: most amounts of money
// stand in a list once, and looking each up among all others would cost more than a second copy now and then.
// Each call costs what it adds, so that a list costs in proportion to its length.

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

  // Arrays and dictionaries are made from what was put aside since mark(): an array of its elements, a
  // dictionary of all its keys and then all its values, in the same order. Containers inside come first.
  [[nodiscard]] std::size_t mark() const { return aside_.size(); }
  void putAside(Reference object) { aside_.push_back(object); }
  Reference array(std::size_t mark);
  Reference dictionary(std::size_t mark);

  // The file. The writer has given away what it held and is good for nothing more.
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
  // The numbers that were added lately; of those that share a place, the last one.
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
  std::vector<std::size_t> offsets_;  // by object number; a container's is known when the file is finished
  RecentNumbers integers_;
  RecentNumbers reals_;
  std::vector<Slot> table_;  // all other scalars by their bytes in the file; a power of 2, half empty
  std::size_t in_table_ = 0;
  std::vector<Container> containers_;
  std::vector<Reference> references_;  // of all containers, one after the other
  std::vector<Reference> aside_;
};

}  // namespace tb::plist
