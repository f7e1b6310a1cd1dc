#pragma once

// The one source of chance. Rules draw through RandomRange and RandomUnit only; tests script the source.

#include <cstdint>

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
// ends the process.
[[nodiscard]] std::int64_t RandomRange(RandomSource& random, std::int64_t n);

// A uniform double on the closed range a to b.
[[nodiscard]] double RandomUnit(RandomSource& random, double a, double b);

}  // namespace tb
