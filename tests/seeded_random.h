#pragma once

// A deterministic random source.

#include <cstdint>
#include <random>

#include "core/random.h"

namespace tb::test {

class SeededRandom : public RandomSource {
 public:
  explicit SeededRandom(std::uint64_t seed) : engine_(seed) {}
  void seed(std::uint64_t seed) { engine_.seed(seed); }
  std::uint64_t next() override { return engine_(); }

 private:
  std::mt19937_64 engine_;
};

}  // namespace tb::test
