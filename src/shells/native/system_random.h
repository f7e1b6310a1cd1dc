#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/random.h"

namespace tb {

// Random words from the system's secure generator. Fetches many words at a time, because a busy week draws
// thousands and a system call costs more than the words.
class SystemRandom : public RandomSource {
 public:
  std::uint64_t next() override;

 private:
  void fill();

  std::array<std::uint64_t, 32> words_ = {};  // 256 bytes, the largest request that is not split
  std::size_t used_ = words_.size();
};

}  // namespace tb
