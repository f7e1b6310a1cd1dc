#include "core/property_list_objects.h"

#include <bit>
#include <cstring>

#include "core/property_list_format.h"
#include "core/property_list_text.h"

namespace tb::plist {
namespace {

constexpr std::size_t largestNumber = 8;  // bytes of an offset, a reference or a count

std::uint64_t bigEndian(const std::byte* bytes, std::size_t size) {
  std::uint64_t value = 0;
  for (std::size_t index = 0; index < size; ++index) {
    value = value << 8 | std::to_integer<std::uint64_t>(bytes[index]);
  }
  return value;
}

std::uint64_t bigEndian(std::span<const std::byte> bytes) { return bigEndian(bytes.data(), bytes.size()); }

// An integer from `content`. The 16-byte form is accepted only when the number fits in 64 bits, so that the
// upper half is just the sign.
std::expected<Object, ReadError> integerObject(std::span<const std::byte> content) {
  const std::size_t lowSize = content.size() < largestNumber ? content.size() : largestNumber;
  const auto value = static_cast<std::int64_t>(bigEndian(content.last(lowSize)));
  if (content.size() > largestNumber) {
    const auto above = static_cast<std::int64_t>(bigEndian(content.first(largestNumber)));
    if (above != (value < 0 ? -1 : 0)) return std::unexpected(ReadError::badObject);
  }
  return Object{.kind = ObjectKind::integer, .integer = value};
}

std::expected<Object, ReadError> realObject(ObjectKind kind, std::span<const std::byte> content) {
  const std::uint64_t bits = bigEndian(content);
  const double value = content.size() == sizeof(float)
                           ? static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)))
                           : std::bit_cast<double>(bits);
  return Object{.kind = kind, .real = value};
}

}  // namespace

std::expected<Objects, ReadError> Objects::open(std::span<const std::byte> file) {
  if (file.size() < format::header.size() + format::trailerSize ||
      std::memcmp(file.data(), format::header.data(), format::header.size()) != 0) {
    return std::unexpected(ReadError::notAPropertyList);
  }
  const auto body = file.first(file.size() - format::trailerSize);
  const auto trailer = file.last(format::trailerSize);
  Objects objects;
  objects.offset_size_ = std::to_integer<std::size_t>(trailer[format::offsetSizeAt]);
  objects.reference_size_ = std::to_integer<std::size_t>(trailer[format::referenceSizeAt]);
  objects.count_ = bigEndian(trailer.subspan(format::objectCountAt, 8));
  objects.root_ = bigEndian(trailer.subspan(format::rootAt, 8));
  const std::uint64_t offsetTable = bigEndian(trailer.subspan(format::offsetTableAt, 8));

  const auto isNumberSize = [](std::size_t size) { return size >= 1 && size <= largestNumber; };
  if (!isNumberSize(objects.offset_size_) || !isNumberSize(objects.reference_size_) ||
      offsetTable < format::header.size() || offsetTable > body.size() ||
      objects.count_ > (body.size() - offsetTable) / objects.offset_size_ ||
      objects.root_ >= objects.count_) {
    return std::unexpected(ReadError::badTrailer);
  }
  objects.objects_ = body.first(static_cast<std::size_t>(offsetTable));
  objects.offsets_ = body.subspan(static_cast<std::size_t>(offsetTable));
  return objects;
}

// The marker of the object; null when the table has no such offset. open() has checked the table's size.
const std::byte* Objects::markerOf(Reference reference) const {
  if (reference >= count_) return nullptr;
  const std::byte* const entry = offsets_.data() + static_cast<std::size_t>(reference) * offset_size_;
  const std::uint64_t offset = bigEndian(entry, offset_size_);
  if (offset < format::header.size() || offset >= objects_.size()) return nullptr;
  return objects_.data() + offset;
}

std::optional<std::int64_t> Objects::integerAt(Reference reference) const {
  const std::byte* const marker = markerOf(reference);
  if (marker == nullptr) return std::nullopt;
  const auto kind = std::to_integer<std::uint8_t>(*marker);
  if (kind < format::integerMarker || kind > (format::integerMarker | 3)) return std::nullopt;
  const std::size_t size = std::size_t{1} << (kind & 0x0F);
  if (objects_.data() + objects_.size() - marker <= static_cast<std::ptrdiff_t>(size)) return std::nullopt;
  return static_cast<std::int64_t>(bigEndian(marker + 1, size));
}

std::optional<double> Objects::realAt(Reference reference) const {
  const std::byte* const marker = markerOf(reference);
  if (marker == nullptr || std::to_integer<std::uint8_t>(*marker) != (format::realMarker | 3)) {
    return std::nullopt;
  }
  constexpr std::size_t size = sizeof(double);
  if (objects_.data() + objects_.size() - marker <= static_cast<std::ptrdiff_t>(size)) return std::nullopt;
  return std::bit_cast<double>(bigEndian(marker + 1, size));
}

std::expected<Object, ReadError> Objects::object(Reference reference) const {
  if (reference >= count_) return std::unexpected(ReadError::badReference);
  const std::byte* const first = markerOf(reference);
  if (first == nullptr) return std::unexpected(ReadError::badTrailer);

  const auto at = static_cast<std::size_t>(first - objects_.data()) + 1;
  const auto marker = std::to_integer<std::uint8_t>(objects_[at - 1]);
  const std::uint8_t low = marker & 0x0F;
  const auto number = [&](std::size_t largest) -> std::span<const std::byte> {
    const std::size_t size = std::size_t{1} << low;
    return size <= largest && size <= objects_.size() - at ? objects_.subspan(at, size)
                                                           : std::span<const std::byte>{};
  };
  switch (marker & 0xF0) {
    case 0x00:
      if (marker != format::falseMarker && marker != format::trueMarker) break;
      return Object{.kind = ObjectKind::boolean, .integer = marker == format::trueMarker};
    case format::integerMarker:
      if (const auto content = number(16); !content.empty()) return integerObject(content);
      break;
    case format::realMarker:
      if (const auto content = number(8); content.size() >= sizeof(float)) {
        return realObject(ObjectKind::real, content);
      }
      break;
    case format::dateMarker & 0xF0:
      if (marker != format::dateMarker) break;
      if (const auto content = number(8); !content.empty()) return realObject(ObjectKind::date, content);
      break;
    case format::dataMarker:
      return sized(ObjectKind::data, low, at);
    case format::asciiMarker:
      return sized(ObjectKind::asciiText, low, at);
    case format::utf16Marker:
      return sized(ObjectKind::utf16Text, low, at);
    case format::arrayMarker:
      return sized(ObjectKind::array, low, at);
    case format::dictionaryMarker:
      return sized(ObjectKind::dictionary, low, at);
    default:
      break;
  }
  return std::unexpected(ReadError::badObject);
}

// An object whose marker, just before `at`, holds the count or says that an integer with the count follows.
std::expected<Object, ReadError> Objects::sized(ObjectKind kind, std::uint8_t low, std::size_t at) const {
  std::uint64_t count = low;
  if (low == format::countFollows) {
    if (at == objects_.size()) return std::unexpected(ReadError::badObject);
    const auto marker = std::to_integer<std::uint8_t>(objects_[at]);
    const std::size_t size = std::size_t{1} << (marker & 0x0F);
    at += 1;
    if ((marker & 0xF0) != format::integerMarker || size > largestNumber || size > objects_.size() - at) {
      return std::unexpected(ReadError::badObject);
    }
    count = bigEndian(objects_.subspan(at, size));
    at += size;
  }
  const std::size_t unit = kind == ObjectKind::utf16Text    ? 2
                           : kind == ObjectKind::array      ? reference_size_
                           : kind == ObjectKind::dictionary ? 2 * reference_size_
                                                            : 1;
  if (count > (objects_.size() - at) / unit) return std::unexpected(ReadError::badObject);
  const auto entries = static_cast<std::size_t>(count);
  return Object{.kind = kind, .content = objects_.subspan(at, entries * unit), .entries = entries};
}

Reference Objects::referenceAt(std::span<const std::byte> content, std::size_t index) const {
  return bigEndian(content.subspan(index * reference_size_, reference_size_));
}

std::expected<std::string, ReadError> textOf(const Object& object, Budget& budget) {
  // A UTF-16 unit becomes at most 3 bytes of UTF-8.
  const bool ascii = object.kind == ObjectKind::asciiText;
  if (!ascii && object.kind != ObjectKind::utf16Text) return std::unexpected(ReadError::badText);
  if (!budget.spend(object.entries, ascii ? 1 : 3)) return std::unexpected(ReadError::tooMuchWork);
  if (ascii) {
    std::string text(reinterpret_cast<const char*>(object.content.data()), object.content.size());
    if (!isAscii(text)) return std::unexpected(ReadError::badText);
    return text;
  }
  std::string text;
  if (!appendUtf8(text, object.content)) return std::unexpected(ReadError::badText);
  return text;
}

}  // namespace tb::plist
