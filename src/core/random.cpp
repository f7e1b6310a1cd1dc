#include "core/random.h"

#include <cmath>

#include "core/stop.h"

namespace tb {

std::int64_t RandomRange(RandomSource& random, std::int64_t n) {
  if (n < 1) stopTheGame("RandomRange of nothing");
  const auto count = static_cast<std::uint64_t>(n);
  // The high half of word · n is uniform once words whose low half is below 2^64 mod n are rejected; without
  // that, some results would have one more word than others.
  const std::uint64_t refused = (0 - count) % count;
  unsigned __int128 product = 0;
  do {
    product = static_cast<unsigned __int128>(random.next()) * count;
  } while (static_cast<std::uint64_t>(product) < refused);
  return static_cast<std::int64_t>(product >> 64);
}

std::int64_t RandomBetween(RandomSource& random, std::int64_t low, std::int64_t high) {
  return low + RandomRange(random, high - low + 1);
}

double RandomUnit(RandomSource& random, double a, double b) {
  if (!std::isfinite(a) || !std::isfinite(b) || a > b) stopTheGame("RandomUnit of no range");
  constexpr std::int64_t steps = std::int64_t{1} << 53;
  const std::int64_t r = RandomRange(random, steps + 1);
  if (r == steps) return b;
  return static_cast<double>(r) * 0x1p-53 * (b - a) + a;
}

}  // namespace tb
