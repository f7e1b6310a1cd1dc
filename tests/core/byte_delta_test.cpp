#include "core/byte_delta.h"

#include <gtest/gtest.h>
#include <limits>

#include "core/random.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

class Deltas : public testing::Test {
 protected:
  std::size_t upTo(std::size_t most) {
    return static_cast<std::size_t>(RandomRange(random, static_cast<std::int64_t>(most) + 1));
  }

  Bytes anyBytes(std::size_t count) {
    Bytes bytes(count);
    for (std::byte& byte : bytes) byte = static_cast<std::byte>(upTo(alphabet));
    return bytes;
  }
  // As when values of a list change, grow, appear and go.
  Bytes edited(Bytes bytes) {
    for (std::size_t edits = upTo(5); edits > 0; --edits) {
      const std::size_t at = upTo(bytes.size());
      const std::size_t gone = std::min(upTo(20), bytes.size() - at);
      const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(at);
      bytes.erase(from, from + static_cast<std::ptrdiff_t>(gone));
      const Bytes added = anyBytes(upTo(20));
      bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), added.begin(), added.end());
    }
    return bytes;
  }

  test::SeededRandom random{3};
  std::size_t alphabet = 255;
};

TEST_F(Deltas, GiveTheEarlierVersionBackAndAreSmall) {
  for (int round = 0; round < 2000; ++round) {
    alphabet = round % 2 == 0 ? 255 : 2;  // two values: many false matches
    const Bytes later = anyBytes(upTo(round % 10 == 0 ? 5000 : 60));
    const Bytes earlier = edited(later);
    const Bytes delta = deltaTo(earlier, later);
    ASSERT_EQ(earlierOf(later, delta), earlier) << "round " << round;
    ASSERT_LE(delta.size(), std::min<std::size_t>(earlier.size() + 12, 400)) << "round " << round;
  }
}

TEST_F(Deltas, ThatAreDamagedOrOfAnotherVersionGiveNothingOrStaySmall) {
  const Bytes later = anyBytes(300);
  const Bytes delta = deltaTo(edited(later), later);
  for (std::size_t length = 0; length < delta.size(); ++length) {
    EXPECT_FALSE(earlierOf(later, std::span(delta).first(length)));
  }
  Bytes other = later;
  other[200] ^= std::byte{1};
  EXPECT_FALSE(earlierOf(other, delta));
  for (int round = 0; round < 3000; ++round) {
    Bytes damaged = delta;
    for (std::size_t flips = 1 + upTo(2); flips > 0; --flips)
      damaged[upTo(damaged.size() - 1)] ^= static_cast<std::byte>(1 + upTo(254));
    const auto earlier = earlierOf(later, damaged);
    if (earlier) EXPECT_LE(earlier->size(), std::size_t{1} << 26);
  }
}

TEST_F(Deltas, NumbersOfAllSizes) {
  Bytes bytes;
  const std::int64_t numbers[] = {0,
                                  -1,
                                  63,
                                  64,
                                  -64,
                                  -65,
                                  1 << 20,
                                  std::numeric_limits<std::int64_t>::max(),
                                  std::numeric_limits<std::int64_t>::min()};
  for (const std::int64_t number : numbers) putNumber(bytes, number);
  std::span<const std::byte> left = bytes;
  for (const std::int64_t number : numbers) EXPECT_EQ(takeNumber(left), number);
  EXPECT_FALSE(takeNumber(left));
}

}  // namespace
}  // namespace tb
