#pragma once

// Chance, scripted: a test says what the next draws give, and sees when a rule draws more or fewer.

#include <cstdint>
#include <deque>
#include <gtest/gtest.h>

#include "core/random.h"

namespace tb::test {

// What a draw gives that the test did not script.
enum class Unscripted : std::uint8_t {
  fails,
  low,  // the low end of its range, for stories of many draws
};

class ScriptedRandom : public RandomSource {
 public:
  explicit ScriptedRandom(Unscripted unscripted = Unscripted::fails) : unscripted_(unscripted) {}
  ScriptedRandom(const ScriptedRandom&) = delete;
  ScriptedRandom& operator=(const ScriptedRandom&) = delete;
  ~ScriptedRandom() override { EXPECT_EQ(words_.size(), 0u) << "draws that no rule took"; }

  // The next RandomRange(n) gives `value`.
  ScriptedRandom& range(std::int64_t n, std::int64_t value) {
    // The middle of the words that RandomRange maps to `value`, so that none is drawn again.
    const auto numerator =
        (static_cast<unsigned __int128>(value) << 64) + (static_cast<unsigned __int128>(1) << 63);
    words_.push_back(static_cast<std::uint64_t>(numerator / static_cast<unsigned __int128>(n)));
    return *this;
  }

  // The next RandomUnit(a, b) gives a + share · (b - a), to the resolution of the draw; share 1 gives exactly
  // b.
  ScriptedRandom& unit(double share) {
    constexpr std::int64_t steps = (std::int64_t{1} << 53) + 1;
    return range(steps, share >= 1 ? steps - 1 : static_cast<std::int64_t>(share * 0x1p53));
  }

  // The next `count` draws are of no interest: they give the low end.
  ScriptedRandom& any(int count) {
    words_.insert(words_.end(), static_cast<std::size_t>(count), lowWord);
    return *this;
  }

  std::uint64_t next() override {
    if (words_.empty()) {
      EXPECT_EQ(unscripted_, Unscripted::low) << "a draw that the test did not script";
      return lowWord;
    }
    const std::uint64_t word = words_.front();
    words_.pop_front();
    return word;
  }

 private:
  // The low end of every range, and never drawn again.
  static constexpr std::uint64_t lowWord = 1;

  Unscripted unscripted_;
  std::deque<std::uint64_t> words_;
};

}  // namespace tb::test
