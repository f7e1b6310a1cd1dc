#include "tests/crash/career_actions.h"

#include <utility>

#include "core/career_start.h"
#include "core/save_backups.h"
#include "core/save_slots.h"
#include "core/way_back.h"
#include "week/end_week.h"

namespace tb::crash {

namespace {

// A screen with one button.
class Desk : public Screen {
 public:
  explicit Desk(std::function<void(Game&)> action) : action_(std::move(action)) {}

  [[nodiscard]] view::Page view(const Game&) override {
    return {.title = "Desk",
            .main = {{.label = "Act", .press = [this](Stage& stage) { action_(stage.game()); }}}};
  }

 private:
  std::function<void(Game&)> action_;
};

}  // namespace

void actInGame(SaveStore& store, Documents& documents, RandomSource& random,
               const std::function<void(Game&)>& action) {
  App app(store, random, {}, std::make_unique<Desk>(action), stoppedClock, &documents);
  app.press(app.view().main.front().handle);
}

void beginCareer(Game& game, const std::string& name) {
  static_cast<void>(confirmNewCareer(game, {.myName = name, .aboutDescription = {}, .headshotImage = {}}));
}

void playWeek(Game& game) {
  keepWayBack(game);
  endWeek(game);
  static_cast<void>(openSummary(game));
  closeSummary(game);
}

void switchToSlot(Game& game, Int index) {
  SlotManager::switchTo(game, index, false, [](const TakenUp&) {});
}

void restoreBackup(Game& game) {
  const auto backups = SaveBackupManager::list(game);
  if (backups && !backups->empty())
    SaveBackupManager::restore(game, backups->front().url, false, [](const TakenUp&) {});
}

}  // namespace tb::crash
