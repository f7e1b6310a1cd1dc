#pragma once

// The only source of randomness. Rules draw through these functions only. The generator's state is not saved,
// so a game cannot be replayed. Tests script the source.

#include <cstdint>
#include <span>

namespace tb {

class RandomSource {
 public:
  RandomSource() = default;
  RandomSource(const RandomSource&) = delete;
  RandomSource& operator=(const RandomSource&) = delete;
  virtual ~RandomSource() = default;

  // 64 random bits.
  virtual std::uint64_t next() = 0;
};

// A uniform integer from 0 to n - 1, without bias. The process ends when n is less than 1, which is a
// programming error. RandomRange(101) is the game's percentage roll.
[[nodiscard]] std::int64_t RandomRange(RandomSource& random, std::int64_t n);

// A uniform integer from low to high, inclusive. high must be at least low.
[[nodiscard]] std::int64_t RandomBetween(RandomSource& random, std::int64_t low, std::int64_t high);

// A uniform double from a to b, inclusive. a must be at most b and both finite, or the process ends.
[[nodiscard]] double RandomUnit(RandomSource& random, double a, double b);

// A uniformly chosen element of a table, which must not be empty.
template <class T>
[[nodiscard]] const T& RandomElement(RandomSource& random, std::span<const T> table) {
  return table[static_cast<std::size_t>(RandomRange(random, static_cast<std::int64_t>(table.size())))];
}

}  // namespace tb
