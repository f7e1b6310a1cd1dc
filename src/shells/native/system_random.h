#pragma once

#include "core/random.h"

namespace tb {

// Chance from the system's secure generator: no seed, and no game can be replayed.
class SystemRandom : public RandomSource {
 public:
  std::uint64_t next() override;
};

}  // namespace tb
