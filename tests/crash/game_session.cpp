#include "screens/app.h"
#include "tests/crash/session.h"
#include "tests/random_user.h"

namespace tb::crash {

namespace {

class GameSession : public Session {
 public:
  GameSession(StorePort& port, Documents& documents)
      : store_(port), app_(store_, random_, {}, stoppedClock, &documents) {}

  void act(std::uint64_t number) override {
    random_.seed(number);
    user_.seed(number);
    user_.act(player_);
  }

 private:
  SaveStore store_;
  test::SeededRandom random_{0};
  test::RandomUser user_{0};
  App app_;
  test::Player player_{app_};
};

}  // namespace

std::unique_ptr<Session> playGame(StorePort& port, Documents& documents) {
  return std::make_unique<GameSession>(port, documents);
}

}  // namespace tb::crash
