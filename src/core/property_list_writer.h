#pragma once

// Writes a binary property list object by object, for values and for records alike.
//
// A scalar that is added twice is one object in the file, as every writer of the format does it: names of
// fields, titles and small numbers are stored once. Each call costs what it adds, so that a list costs in
// proportion to its length.

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
    std::uint8_t marker;
    std::size_t references;
  };
  struct Slot {
    std::uint32_t hash;
    Reference object;
  };

  std::byte* grow(std::size_t size);
  void addNumber(std::uint8_t marker, std::uint64_t bits, std::size_t size);
  void addCount(std::uint8_t marker, std::uint64_t count);
  Reference uniqueScalar(std::size_t start);
  void growTable();
  Reference container(std::uint8_t marker, std::size_t mark);
  [[nodiscard]] std::size_t containersSizeAtMost(std::size_t referenceSize) const;
  void writeContainers(std::size_t referenceSize);

  Bytes file_;
  std::vector<std::size_t> offsets_;  // by object number; a container's is known when the file is finished
  std::vector<Slot> table_;           // the scalars by their bytes in the file; a power of 2, half empty
  std::size_t scalars_ = 0;
  std::vector<Container> containers_;
  std::vector<Reference> references_;  // of all containers, one after the other
  std::vector<Reference> aside_;
};

}  // namespace tb::plist
