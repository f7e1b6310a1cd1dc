#pragma once

// A scripted random source: tests set the next draws and detect extra or missing ones.

#include <cstdint>
#include <deque>
#include <gtest/gtest.h>

#include "core/random.h"

namespace tb::test {

// The result of an unscripted draw.
enum class Unscripted : std::uint8_t {
  fails,
  low,  // the lowest value, for tests with many draws
};

class ScriptedRandom : public RandomSource {
 public:
  explicit ScriptedRandom(Unscripted unscripted = Unscripted::fails) : unscripted_(unscripted) {}
  ScriptedRandom(const ScriptedRandom&) = delete;
  ScriptedRandom& operator=(const ScriptedRandom&) = delete;
  ~ScriptedRandom() override { EXPECT_EQ(words_.size(), 0u) << "draws that no rule took"; }

  // The next draw is RandomRange(n) and gives `value`.
  ScriptedRandom& range(std::int64_t n, std::int64_t value) {
    // The middle of the words that map to `value`, so that none is rejected.
    const auto numerator =
        (static_cast<unsigned __int128>(value) << 64) + (static_cast<unsigned __int128>(1) << 63);
    words_.push_back(static_cast<std::uint64_t>(numerator / static_cast<unsigned __int128>(n)));
    return *this;
  }

  // The next draw is RandomUnit(a, b) and gives a + share · (b - a) to the resolution of the draw; share 1
  // gives exactly b.
  ScriptedRandom& unit(double share) {
    constexpr std::int64_t steps = (std::int64_t{1} << 53) + 1;
    return range(steps, share >= 1 ? steps - 1 : static_cast<std::int64_t>(share * 0x1p53));
  }

  // The next `count` draws give their lowest values.
  ScriptedRandom& any(int count) {
    words_.insert(words_.end(), static_cast<std::size_t>(count), lowWord);
    return *this;
  }

  // Takes back the draws that were not used.
  void clear() { words_.clear(); }

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
  // The lowest value of every range; never rejected.
  static constexpr std::uint64_t lowWord = 1;

  Unscripted unscripted_;
  std::deque<std::uint64_t> words_;
};

}  // namespace tb::test
