#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "screens/app.h"
#include "tests/crash/session.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb::crash {

namespace {

using test::Player;

// Labels that advance the career; they are chosen more often than others.
constexpr const char* favourites[] = {"Start my career", "End Week", "OK"};
constexpr std::int64_t favoured = 3;  // in 10 actions

class GameSession : public Session {
 public:
  explicit GameSession(StorePort& port) : store_(port) {}

  void act(std::uint64_t number) override {
    random_.seed(number);
    const std::vector<Player::Usable> all = player_.usable();
    if (all.empty()) return;
    const Player::Usable& chosen = choose(all);
    switch (chosen.kind) {
      case Player::Usable::Kind::press:
        return app_.press(chosen.handle);
      case Player::Usable::Kind::type:
        return app_.type(chosen.handle, "Ada " + std::to_string(number));
      case Player::Usable::Kind::slide:
        return app_.slide(chosen.handle, RandomUnit(random_, chosen.minimum, chosen.maximum));
    }
  }

 private:
  const Player::Usable& choose(const std::vector<Player::Usable>& all) {
    if (RandomRange(random_, 10) < favoured) {
      for (const Player::Usable& usable : all) {
        if (std::ranges::contains(favourites, usable.label)) return usable;
      }
    }
    return all[static_cast<std::size_t>(RandomRange(random_, static_cast<std::int64_t>(all.size())))];
  }

  SaveStore store_;
  test::SeededRandom random_{0};
  App app_{store_, random_};
  Player player_{app_};
};

}  // namespace

std::unique_ptr<Session> playGame(StorePort& port) { return std::make_unique<GameSession>(port); }

}  // namespace tb::crash
