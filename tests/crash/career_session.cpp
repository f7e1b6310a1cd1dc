#include "core/save_backups.h"
#include "core/save_slots.h"
#include "core/way_back.h"
#include "tests/crash/career_actions.h"
#include "tests/crash/session.h"
#include "tests/seeded_random.h"

namespace tb::crash {

namespace {

class CareerSession : public Session {
 public:
  CareerSession(StorePort& port, Documents& documents) : store_(port), documents_(documents) {
    actInGame(store_, documents_, random_, [](Game&) {});
  }

  void act(std::uint64_t number) override {
    random_.seed(number);
    actInGame(store_, documents_, random_, [this](Game& game) {
      if (game.world.enterPlayerDetails == 0) {
        beginCareer(game, "Performer of slot " + game.world.activeSaveSlot);
      } else {
        actInCareer(game);
      }
    });
  }

 private:
  void actInCareer(Game& game) {
    switch (RandomRange(random_, 12)) {
      case 0:
        return static_cast<void>(backToLastWeek(game));
      case 1:
        return static_cast<void>(returnToWeek(game));
      case 2:
        return static_cast<void>(SaveBackupManager::backUp(game));
      case 3:
        return restoreBackup(game);
      case 4:
        return SlotManager::remove(game, RandomRange(random_, SlotManager::slotCount));
      case 5:
        return static_cast<void>(depositInBank(game.world, 10));
      case 6:
      case 7:
      case 8:
        return switchToSlot(game, RandomRange(random_, SlotManager::slotCount));
      default:
        game.world.totalCashAvailable += 100;
        playWeek(game);
    }
  }

  SaveStore store_;
  Documents& documents_;
  test::SeededRandom random_{0};
};

}  // namespace

std::unique_ptr<Session> playCareers(StorePort& port, Documents& documents) {
  return std::make_unique<CareerSession>(port, documents);
}

}  // namespace tb::crash
