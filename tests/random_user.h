#pragma once

// A player who uses random items of the page, with a generator separate from the game's.

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb::test {

class RandomUser {
 public:
  explicit RandomUser(std::uint64_t seed) : whim_(seed) {}

  void seed(std::uint64_t seed) { whim_.seed(seed); }

  // Uses one item; false when there is none.
  bool act(Player& player) {
    const std::vector<Player::Usable> all = player.usable();
    if (all.empty()) return false;
    const Player::Usable& chosen = choose(all);
    switch (chosen.kind) {
      case Player::Usable::Kind::press:
        player.press(chosen);
        break;
      case Player::Usable::Kind::type:
        player.type(chosen, "words " + std::to_string(RandomRange(whim_, 1000)));
        break;
      case Player::Usable::Kind::slide:
        player.slide(chosen, RandomUnit(whim_, chosen.minimum, chosen.maximum));
    }
    return true;
  }

 private:
  // Prefers ending weeks, answering messages and sending showreels, so that the career advances, and rarely
  // restarts it.
  const Player::Usable& choose(const std::vector<Player::Usable>& all) {
    constexpr std::array<std::string_view, 5> favored = {"Submit", "Start my career", "OK", "End Week",
                                                         "Close"};
    for (const std::string_view label : favored) {
      const auto found = std::ranges::find(all, label, &Player::Usable::label);
      if (found != all.end() && RandomRange(whim_, 8) == 0) return *found;
    }
    const auto& any = all[static_cast<std::size_t>(RandomRange(whim_, std::ssize(all)))];
    return any.label == "Restart" && RandomRange(whim_, 50) > 0 ? all.front() : any;
  }

  SeededRandom whim_;
};

}  // namespace tb::test
