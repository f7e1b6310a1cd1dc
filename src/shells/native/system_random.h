#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/random.h"

namespace tb {

// Chance from the system's secure generator: no seed, and no game can be replayed. Asked for many words at a
// time: a busy week draws thousands, and each question to the system costs more than the words do.
class SystemRandom : public RandomSource {
 public:
  std::uint64_t next() override;

 private:
  void fill();

  std::array<std::uint64_t, 32> words_ = {};  // 256 bytes: the most that comes all at once
  std::size_t used_ = words_.size();
};

}  // namespace tb
