#pragma once

// The one source of chance. Rules draw through these functions only; nothing about the generator is saved,
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

// A uniform integer in 0 ..< n, without bias. n must be at least 1; anything else is a programming error and
// ends the process. RandomRange(101) is the game's percentage roll.
[[nodiscard]] std::int64_t RandomRange(RandomSource& random, std::int64_t n);

// A uniform integer in low ... high, both included. high must be at least low.
[[nodiscard]] std::int64_t RandomBetween(RandomSource& random, std::int64_t low, std::int64_t high);

// A uniform double on the closed range a to b. a must be at most b, and both finite, or the process ends.
[[nodiscard]] double RandomUnit(RandomSource& random, double a, double b);

// A uniform element of a table that is not empty.
template <class T>
[[nodiscard]] const T& RandomElement(RandomSource& random, std::span<const T> table) {
  return table[static_cast<std::size_t>(RandomRange(random, static_cast<std::int64_t>(table.size())))];
}

}  // namespace tb
