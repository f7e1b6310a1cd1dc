#include "screens/app.h"

#include <memory>
#include <utility>

#include "core/load_world.h"
#include "core/save.h"
#include "core/save_backups.h"
#include "core/save_store.h"
#include "screens/hub/view_controller.h"
#include "week/end_week.h"

namespace tb {

namespace {

constexpr Int schemaVersion = 1;  // of the variables; the stores have their own

Notice aboutDamage(const std::string& damage) {
  return {.title = "🩹 Part of This Career Is Damaged 🩹",
          .message = damage +
                     "\n\nEverything else is as it was. What could not be used stays in the save "
                     "that it was read from, outside the game."};
}

}  // namespace

App::App(SaveStore& store, RandomSource& random, Locale locale, Clock clock, Documents* documents)
    : App(store, random, std::move(locale), std::make_unique<ViewController>(), clock, documents) {}

App::App(SaveStore& store, RandomSource& random, Locale locale, std::unique_ptr<Screen> first, Clock clock,
         Documents* documents)
    : game_{.store = store,
            .random = random,
            .locale = std::move(locale),
            .clock = clock,
            .documents = documents},
      stage_(game_) {
  loadStore(Reload::asAtStart);
  stage_.beginWith(std::move(first));
  saveChanges(game_);
  endAction();
}

const view::Page& App::view() {
  if (!laid_out_) {
    view::Page page = stage_.top().view(game_);
    addFrame(page);
    laid_out_ = layOut(std::move(page), stage_);
  }
  return laid_out_->page;
}

// Adds the parts of a page that no screen fills in.
void App::addFrame(view::Page& page) {
  page.screen = stage_.topNumber();
  page.passing = stage_.passing();
  page.moment = stage_.moment();
  if (!stage_.dialogs().empty()) page.dialog.push_back(stage_.dialogs().front());
  if (stage_.depth() < 2) return;
  const std::string close = stage_.top().closeLabel();
  if (!close.empty()) {
    page.close.push_back({.label = close, .press = [](Stage& stage) { stage.leave(); }});
  }
  stage_.first().addFrame(game_, stage_.tabsHere(), page);
}

template <class Kind, class... Values>
void App::use(view::Handle handle, Kind LaidOutPage::Use::* kind, const Values&... values) {
  static_cast<void>(view());
  if (handle < 1 || static_cast<std::size_t>(handle) > laid_out_->uses.size()) return;
  const Kind operation = laid_out_->uses[static_cast<std::size_t>(handle) - 1].*kind;
  if (!operation) return;
  stage_.begin();
  operation(stage_, values...);
  endAction();
}

void App::press(view::Handle handle) { use(handle, &LaidOutPage::Use::press); }
void App::type(view::Handle handle, const std::string& text) { use(handle, &LaidOutPage::Use::type, text); }
void App::slide(view::Handle handle, double value) { use(handle, &LaidOutPage::Use::slide, value); }

void App::tick(double seconds) {
  stage_.top().tick(stage_, seconds);
  endAction();
}

void App::back() {
  const auto& close = view().close;
  if (!close.empty()) return press(close.front().handle);
  if (!stage_.dialogs().empty()) return;
  stage_.begin();
  stage_.top().goBack(stage_);
  endAction();
}

void App::goOn(const std::function<void()>& rest) {
  stage_.begin();
  rest();
  endAction();
}

void App::savingFailed(const std::string& why) {
  if (unsaved_because_.empty()) {
    stage_.show(
        Notice{.title = "💾 Not Saved 💾",
               .message = "The game can't save right now: " + why +
                          "\n\nYou can play on. Nothing is lost while the game stays open, and it tries "
                          "again after each thing you do."});
  }
  unsaved_because_ = why;
  laid_out_.reset();
}

void App::tell(Notice notice) {
  stage_.show(std::move(notice));
  laid_out_.reset();
}

void App::say(std::string line) {
  stage_.say(std::move(line));
  laid_out_.reset();
}

void App::loadStore(Reload extent) {
  game_.recentRows = {};
  const std::vector<Damage> damages = loadWorld(game_, extent);
  if (const auto damage = describe(damages)) stage_.show(aboutDamage(*damage));
  game_.world.saveSchemaVersion = schemaVersion;
  backed_up_year_ = game_.world.yearNumber;
}

void App::saveAndRefresh() {
  if (!saveChanges(game_)) return;
  refreshHub(game_, HubRefresh::worldChanged);
  saveChanges(game_);
}

void App::backUpAtNewYear() {
  if (std::exchange(backed_up_year_, game_.world.yearNumber) == game_.world.yearNumber) return;
  SaveBackupManager::backUp(game_);
}

// Refreshes the hub, which can end a year, both before opened screens appear and after, because appear() can
// change the state.
void App::endAction() {
  if (const Reload extent = std::exchange(game_.reload, Reload::none); extent != Reload::none) {
    loadStore(extent);
    stage_.beginWith(std::make_unique<ViewController>());
  }
  saveAndRefresh();
  stage_.settle();
  saveAndRefresh();
  backUpAtNewYear();
  laid_out_.reset();
  if (!game_.store.hasUncommitted()) return;
  if (const auto saved = game_.store.commit(); saved) {
    unsaved_because_.clear();
  } else {
    savingFailed(saved.error());
  }
}

}  // namespace tb
