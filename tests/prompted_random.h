#pragma once

// Chance that is low but for what a test says, for stories of many draws.

#include <cstddef>
#include <cstdint>
#include <deque>

#include "core/random.h"

namespace tb::test {

// Chance that gives the low end of every draw, and now and then what it was told.
class PromptedRandom : public RandomSource {
 public:
  PromptedRandom& skip(int draws) {
    prompts_.insert(prompts_.end(), static_cast<std::size_t>(draws), lowWord);
    return *this;
  }
  // The next draw from `n` gives `value`.
  PromptedRandom& range(std::int64_t n, std::int64_t value) {
    prompts_.push_back(static_cast<std::uint64_t>(
        ((static_cast<unsigned __int128>(value) << 64) + (static_cast<unsigned __int128>(1) << 63)) /
        static_cast<unsigned __int128>(n)));
    return *this;
  }
  std::uint64_t next() override {
    if (prompts_.empty()) return lowWord;
    const std::uint64_t word = prompts_.front();
    prompts_.pop_front();
    return word;
  }

 private:
  static constexpr std::uint64_t lowWord = 1;
  std::deque<std::uint64_t> prompts_;
};

}  // namespace tb::test
