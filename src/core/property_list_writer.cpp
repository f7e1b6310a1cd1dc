#include "core/property_list_writer.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <limits>
#include <type_traits>
#include <utility>

#include "core/property_list_format.h"
#include "core/property_list_text.h"

namespace tb::plist {
namespace {

constexpr Writer::Reference noObject = std::numeric_limits<Writer::Reference>::max();
constexpr std::size_t countSizeAtMost = 1 + 1 + 8;  // marker, the count's marker, count

// The number of bytes for an unsigned number: 1, 2, 4 or 8, because not every reader accepts other sizes.
std::size_t sizeFor(std::uint64_t value) {
  if (value <= std::numeric_limits<std::uint8_t>::max()) return 1;
  if (value <= std::numeric_limits<std::uint16_t>::max()) return 2;
  if (value <= std::numeric_limits<std::uint32_t>::max()) return 4;
  return 8;
}

// The size code in an integer's marker: 0, 1, 2, 3 for 1, 2, 4, 8 bytes.
std::uint8_t sizeCode(std::size_t size) { return static_cast<std::uint8_t>(std::countr_zero(size)); }

// Writes the low `size` bytes of `value` at `at`.
void putBigEndian(std::byte* at, std::uint64_t value, std::size_t size) {
  for (std::size_t index = size; index-- > 0; value >>= 8) at[index] = static_cast<std::byte>(value);
}

}  // namespace

Writer::Writer() : table_(256, Slot{0, noObject}) {
  integers_.fill({0, noObject});
  reals_.fill({0, noObject});
  std::memcpy(grow(format::header.size()), format::header.data(), format::header.size());
}

std::byte* Writer::grow(std::size_t size) {
  const std::size_t start = file_.size();
  file_.resize(start + size);
  return file_.data() + start;
}

void Writer::writeNumber(std::uint8_t marker, std::uint64_t bits, std::size_t size) {
  std::byte* at = grow(1 + size);
  at[0] = static_cast<std::byte>(marker);
  putBigEndian(at + 1, bits, size);
}

void Writer::writeCount(std::uint8_t marker, std::uint64_t count) {
  if (count < format::countFollows) {
    *grow(1) = static_cast<std::byte>(marker | count);
    return;
  }
  *grow(1) = static_cast<std::byte>(marker | format::countFollows);
  const std::size_t size = sizeFor(count);
  writeNumber(format::integerMarker | sizeCode(size), count, size);
}

Writer::Reference Writer::boolean(bool value) {
  const std::size_t start = file_.size();
  *grow(1) = static_cast<std::byte>(value ? format::trueMarker : format::falseMarker);
  return uniqueScalar(start);
}

Writer::Reference Writer::integer(std::int64_t value) {
  // A negative number takes 8 bytes, because the shorter forms are unsigned.
  const auto bits = static_cast<std::uint64_t>(value);
  const std::size_t size = sizeFor(bits);
  return number(integers_, format::integerMarker | sizeCode(size), bits, size);
}

Writer::Reference Writer::real(double value) {
  return number(reals_, format::realMarker | sizeCode(sizeof value), std::bit_cast<std::uint64_t>(value),
                sizeof value);
}

Writer::Reference Writer::number(RecentNumbers& recent, std::uint8_t marker, std::uint64_t bits,
                                 std::size_t size) {
  // Fibonacci hashing: every bit affects the upper half of the product. The factor is 2^64 over the golden
  // ratio.
  const std::uint64_t spread = bits * 0x9E3779B97F4A7C15;
  Number& known = recent[(spread >> 32) % recent.size()];
  if (known.object != noObject && known.bits == bits) return known.object;
  known = {bits, static_cast<Reference>(offsets_.size())};
  offsets_.push_back(file_.size());
  writeNumber(marker, bits, size);
  return known.object;
}

Writer::Reference Writer::date(Date value) {
  const std::size_t start = file_.size();
  writeNumber(format::dateMarker, std::bit_cast<std::uint64_t>(value.seconds), sizeof value.seconds);
  return uniqueScalar(start);
}

Writer::Reference Writer::data(std::span<const std::byte> bytes) {
  const std::size_t start = file_.size();
  writeCount(format::dataMarker, bytes.size());
  file_.insert(file_.end(), bytes.begin(), bytes.end());
  return uniqueScalar(start);
}

Writer::Reference Writer::text(std::string_view utf8) {
  const std::size_t start = file_.size();
  if (isAscii(utf8)) {
    writeCount(format::asciiMarker, utf8.size());
    if (!utf8.empty()) std::memcpy(grow(utf8.size()), utf8.data(), utf8.size());
    return uniqueScalar(start);
  }
  const std::u16string units = toUtf16(utf8);
  writeCount(format::utf16Marker, units.size());
  std::byte* at = grow(2 * units.size());
  for (const char16_t unit : units) {
    putBigEndian(at, unit, 2);
    at += 2;
  }
  return uniqueScalar(start);
}

// Deduplicates the scalar that was just written at `start`: removes it when the same bytes were written
// before. An object's bytes determine its length, so equal prefixes of that length are equal objects.
Writer::Reference Writer::uniqueScalar(std::size_t start) {
  const std::string_view bytes(reinterpret_cast<const char*>(file_.data()) + start, file_.size() - start);
  const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>{}(bytes));
  std::size_t index = hash & (table_.size() - 1);
  for (; table_[index].object != noObject; index = (index + 1) & (table_.size() - 1)) {
    if (table_[index].hash != hash) continue;
    const std::size_t known = offsets_[table_[index].object];
    if (std::memcmp(file_.data() + known, bytes.data(), bytes.size()) == 0) {
      file_.resize(start);
      return table_[index].object;
    }
  }
  const auto object = static_cast<Reference>(offsets_.size());
  offsets_.push_back(start);
  table_[index] = {hash, object};
  in_table_ += 1;
  if (2 * in_table_ > table_.size()) growTable();
  return object;
}

void Writer::growTable() {
  std::vector<Slot> larger(2 * table_.size(), Slot{0, noObject});
  for (const Slot& slot : table_) {
    if (slot.object == noObject) continue;
    std::size_t index = slot.hash & (larger.size() - 1);
    while (larger[index].object != noObject) index = (index + 1) & (larger.size() - 1);
    larger[index] = slot;
  }
  table_ = std::move(larger);
}

Writer::Reference Writer::array(std::size_t mark) { return container(format::arrayMarker, mark); }

Writer::Reference Writer::dictionary(std::size_t mark) { return container(format::dictionaryMarker, mark); }

Writer::Reference Writer::container(std::uint8_t marker, std::size_t mark) {
  const auto object = static_cast<Reference>(offsets_.size());
  offsets_.push_back(0);
  containers_.push_back({object, static_cast<std::uint32_t>(aside_.size() - mark), marker});
  references_.insert(references_.end(), aside_.begin() + static_cast<std::ptrdiff_t>(mark), aside_.end());
  aside_.resize(mark);
  return object;
}

// Containers are written after the scalars, when the number of objects, and so the size of a reference, is
// known.
Bytes Writer::finish(Reference root) {
  const std::size_t referenceSize = sizeFor(offsets_.size());
  const std::size_t tableAtMost = file_.size() + containersSizeAtMost(referenceSize);
  file_.reserve(tableAtMost + offsets_.size() * sizeFor(tableAtMost) + format::trailerSize);

  writeContainers(referenceSize);

  const std::size_t offsetTable = file_.size();
  const std::size_t offsetSize = sizeFor(offsetTable);
  std::byte* at = grow(offsets_.size() * offsetSize + format::trailerSize);
  for (const std::size_t offset : offsets_) {
    putBigEndian(at, offset, offsetSize);
    at += offsetSize;
  }
  at[format::offsetSizeAt] = static_cast<std::byte>(offsetSize);
  at[format::referenceSizeAt] = static_cast<std::byte>(referenceSize);
  putBigEndian(at + format::objectCountAt, offsets_.size(), 8);
  putBigEndian(at + format::rootAt, root, 8);
  putBigEndian(at + format::offsetTableAt, offsetTable, 8);
  return std::move(file_);
}

std::size_t Writer::containersSizeAtMost(std::size_t referenceSize) const {
  return containers_.size() * countSizeAtMost + references_.size() * referenceSize;
}

void Writer::writeContainers(std::size_t referenceSize) {
  const Reference* next = references_.data();
  for (const Container& each : containers_) {
    offsets_[each.object] = file_.size();
    const bool pairs = each.marker == format::dictionaryMarker;
    writeCount(each.marker, pairs ? each.references / 2 : each.references);
    std::byte* at = grow(std::size_t{each.references} * referenceSize);
    for (std::uint32_t left = each.references; left > 0; --left) {
      putBigEndian(at, *next++, referenceSize);
      at += referenceSize;
    }
  }
}

namespace {

Writer::Reference addValue(Writer& writer, const Value& value);

Writer::Reference addArray(Writer& writer, const Array& array) {
  const std::size_t mark = writer.mark();
  for (const Value& element : array) writer.putAside(addValue(writer, element));
  return writer.array(mark);
}

Writer::Reference addDictionary(Writer& writer, const Dictionary& dictionary) {
  const std::size_t mark = writer.mark();
  for (const auto& [key, value] : dictionary) writer.putAside(writer.text(key));
  for (const auto& [key, value] : dictionary) writer.putAside(addValue(writer, value));
  return writer.dictionary(mark);
}

// Recurses to the depth of the value: the game's own values are flat, and read() returns none deeper than
// maximumDepth.
Writer::Reference addValue(Writer& writer, const Value& value) {
  struct Add {
    Writer& writer;
    Writer::Reference operator()(bool held) const { return writer.boolean(held); }
    Writer::Reference operator()(std::int64_t held) const { return writer.integer(held); }
    Writer::Reference operator()(double held) const { return writer.real(held); }
    Writer::Reference operator()(const std::string& held) const { return writer.text(held); }
    Writer::Reference operator()(const Data& held) const { return writer.data(held.bytes); }
    Writer::Reference operator()(Date held) const { return writer.date(held); }
    Writer::Reference operator()(const Array& held) const { return addArray(writer, held); }
    Writer::Reference operator()(const Dictionary& held) const { return addDictionary(writer, held); }
  };
  return std::visit(Add{writer}, value.held);
}

}  // namespace

Bytes write(const Value& root) {
  Writer writer;
  return writer.finish(addValue(writer, root));
}

}  // namespace tb::plist
