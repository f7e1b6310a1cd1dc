#include "core/byte_delta.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <vector>

namespace tb {

static_assert(std::endian::native == std::endian::little, "stored checksums would differ");

namespace {

using Span = std::span<const std::byte>;

constexpr unsigned bitsOfByte = 7;  // of a number; the eighth says that more follow
constexpr std::byte more{0x80};

constexpr std::size_t window = 8;    // shortest match that the index finds, in bytes
constexpr std::size_t spacing = 8;   // of the windows in the index
constexpr std::size_t patience = 8;  // places without a match after which the steps to the next grow
constexpr std::size_t nearby = 4;    // shortest match at the expected place
constexpr std::int64_t largestPiece = 1 << 26;  // bytes; bounds what a damaged delta can make
constexpr std::int64_t largestMove = 1 << 28;   // and how far its copies can jump

std::uint64_t wordAt(Span bytes, std::size_t at) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes.data() + at, sizeof word);
  return word;
}

// The factor is 2^64 over the golden ratio: every bit of the word affects the upper bits of the product.
std::uint64_t spread(std::uint64_t word) { return word * 0x9E3779B97F4A7C15; }

// The number of equal bytes at the front, or at the back. Compares words first, which takes an eighth of the
// time.
std::size_t commonFront(Span one, Span other) {
  const std::size_t most = std::min(one.size(), other.size());
  std::size_t count = 0;
  while (count + window <= most && wordAt(one, count) == wordAt(other, count)) count += window;
  while (count < most && one[count] == other[count]) count += 1;
  return count;
}

std::size_t commonBack(Span one, Span other) {
  const std::size_t most = std::min(one.size(), other.size());
  const auto isEqual = [&](std::size_t before, std::size_t size) {
    return std::memcmp(one.data() + one.size() - before - size, other.data() + other.size() - before - size,
                       size) == 0;
  };
  std::size_t count = 0;
  while (count + window <= most && isEqual(count, window)) count += window;
  while (count < most && isEqual(count, 1)) count += 1;
  return count;
}

// Finds the places of windows.
class Index {
 public:
  Index(Span bytes, std::size_t begin, std::size_t end)
      : bytes_(bytes), places_(std::bit_ceil((end - begin) / spacing + 2), none) {
    shift_ = 64 - std::countr_zero(places_.size());
    for (std::size_t at = begin; at + window <= end; at += spacing) {
      places_[slotOf(wordAt(bytes, at))] = static_cast<std::uint32_t>(at);
    }
  }

  // Where the window stands; nothing when it is not in the index.
  [[nodiscard]] std::optional<std::size_t> find(std::uint64_t word) const {
    const std::uint32_t at = places_[slotOf(word)];
    return at != none && wordAt(bytes_, at) == word ? std::optional<std::size_t>(at) : std::nullopt;
  }

 private:
  static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

  [[nodiscard]] std::size_t slotOf(std::uint64_t word) const {
    return static_cast<std::size_t>(spread(word) >> shift_);
  }

  Span bytes_;
  std::vector<std::uint32_t> places_;  // the size is a power of 2
  int shift_ = 0;
};

// Writes the parts of a delta: bytes of its own, and then a copy from the later version. The place of a copy
// is relative to where the last one ended, plus the bytes between.
class DeltaWriter {
 public:
  DeltaWriter(Bytes& bytes, Span earlier) : bytes_(bytes), earlier_(earlier) {}

  void copy(std::size_t from, std::size_t place, std::size_t count) {
    const std::size_t own = from - written_;
    putOwn(own);
    putNumber(bytes_, static_cast<std::int64_t>(count));
    putNumber(bytes_, static_cast<std::int64_t>(place) - static_cast<std::int64_t>(expected_ + own));
    written_ = from + count;
    expected_ = place + count;
  }
  void finish() {
    if (written_ < earlier_.size()) putOwn(earlier_.size() - written_);
  }

  // Where the later version probably goes on for `from` in the earlier one.
  [[nodiscard]] std::size_t expected(std::size_t from) const { return expected_ + from - written_; }
  [[nodiscard]] std::size_t written() const { return written_; }

 private:
  void putOwn(std::size_t count) {
    putNumber(bytes_, static_cast<std::int64_t>(count));
    const Span own = earlier_.subspan(written_, count);
    bytes_.insert(bytes_.end(), own.begin(), own.end());
  }

  Bytes& bytes_;
  Span earlier_;
  std::size_t written_ = 0;   // of the earlier version
  std::size_t expected_ = 0;  // in the later version
};

// Where a change keeps the length, the same bytes follow at the expected place.
std::optional<std::size_t> expectedPlace(Span earlier, std::size_t from, Span later, std::size_t expected) {
  if (expected + nearby > later.size()) return std::nullopt;
  const bool isSame = std::memcmp(earlier.data() + from, later.data() + expected, nearby) == 0;
  return isSame ? std::optional(expected) : std::nullopt;
}

// What is between the bytes that both versions have at their front and at their back.
void putMiddle(DeltaWriter& writer, Span earlier, Span later, std::size_t front, std::size_t back) {
  std::optional<Index> index;  // made when it is needed
  const std::size_t end = earlier.size() - back;
  std::size_t from = front;
  std::size_t misses = 0;  // since the last match
  while (from + nearby <= end) {
    auto found = expectedPlace(earlier, from, later, writer.expected(from));
    if (!found && misses >= patience && from + window <= end) {
      if (!index) index.emplace(later, front, later.size() - back);
      found = index->find(wordAt(earlier, from));
    }
    if (!found) {
      from += 1 + misses++ / patience;
      continue;
    }
    misses = 0;
    // The index has each fourth window only: the match can have begun before.
    const std::size_t before =
        commonBack(earlier.subspan(writer.written(), from - writer.written()), later.first(*found));
    const std::size_t count = before + commonFront(earlier.first(end).subspan(from), later.subspan(*found));
    writer.copy(from - before, *found - before, count);
    from += count - before;
  }
}

}  // namespace

void putNumber(Bytes& bytes, std::int64_t number) {
  auto left = static_cast<std::uint64_t>(number) << 1 ^ static_cast<std::uint64_t>(number >> 63);
  for (; left >= std::to_integer<std::uint64_t>(more); left >>= bitsOfByte) {
    bytes.push_back(static_cast<std::byte>(left) | more);
  }
  bytes.push_back(static_cast<std::byte>(left));
}

std::optional<std::int64_t> takeNumber(std::span<const std::byte>& bytes) {
  std::uint64_t number = 0;
  for (unsigned shift = 0; shift < 64 && !bytes.empty(); shift += bitsOfByte) {
    const std::byte byte = bytes.front();
    bytes = bytes.subspan(1);
    number |= std::to_integer<std::uint64_t>(byte & ~more) << shift;
    if ((byte & more) == std::byte{0}) return static_cast<std::int64_t>(number >> 1 ^ (0 - (number & 1)));
  }
  return std::nullopt;
}

std::optional<std::span<const std::byte>> takeBytes(std::span<const std::byte>& bytes, std::int64_t count) {
  if (count < 0 || static_cast<std::uint64_t>(count) > bytes.size()) return std::nullopt;
  const Span taken = bytes.first(static_cast<std::size_t>(count));
  bytes = bytes.subspan(taken.size());
  return taken;
}

std::uint32_t checksumOf(std::span<const std::byte> bytes) {
  std::uint64_t sum = bytes.size();
  const auto add = [&sum](std::uint64_t word) {
    sum = spread(sum ^ word);
    sum ^= sum >> 32;
  };
  std::size_t at = 0;
  for (; at + sizeof(std::uint64_t) <= bytes.size(); at += sizeof(std::uint64_t)) add(wordAt(bytes, at));
  for (; at < bytes.size(); ++at) add(std::to_integer<std::uint64_t>(bytes[at]));
  return static_cast<std::uint32_t>(sum);
}

Bytes deltaTo(std::span<const std::byte> earlier, std::span<const std::byte> later) {
  Bytes delta;
  putNumber(delta, checksumOf(later));
  putNumber(delta, static_cast<std::int64_t>(earlier.size()));
  DeltaWriter writer(delta, earlier);
  const std::size_t front = commonFront(earlier, later);
  const std::size_t back = commonBack(earlier.subspan(front), later.subspan(front));
  if (front > 0) writer.copy(0, 0, front);
  putMiddle(writer, earlier, later, front, back);
  if (back > 0) writer.copy(earlier.size() - back, later.size() - back, back);
  writer.finish();
  return delta;
}

std::optional<Bytes> earlierOf(std::span<const std::byte> later, std::span<const std::byte> delta) {
  const auto sum = takeNumber(delta);
  const auto size = takeNumber(delta);
  if (sum != checksumOf(later) || !size || *size < 0 || *size > largestPiece) return std::nullopt;
  Bytes earlier;
  std::int64_t expected = 0;
  while (static_cast<std::int64_t>(earlier.size()) < *size) {
    const auto own = takeBytes(delta, takeNumber(delta).value_or(-1));
    if (!own) return std::nullopt;
    earlier.insert(earlier.end(), own->begin(), own->end());
    if (static_cast<std::int64_t>(earlier.size()) >= *size) break;
    const auto count = takeNumber(delta);
    const auto moved = takeNumber(delta);
    const auto most = static_cast<std::int64_t>(later.size());
    if (!count || !moved || *moved < -largestMove || *moved > largestMove) return std::nullopt;
    const std::int64_t place = expected + static_cast<std::int64_t>(own->size()) + *moved;
    if (place < 0 || place > most || *count < 0 || *count > most - place) return std::nullopt;
    const Span copied = later.subspan(static_cast<std::size_t>(place), static_cast<std::size_t>(*count));
    earlier.insert(earlier.end(), copied.begin(), copied.end());
    expected = place + *count;
  }
  if (static_cast<std::int64_t>(earlier.size()) != *size) return std::nullopt;
  return earlier;
}

}  // namespace tb
