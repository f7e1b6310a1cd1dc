#include "screens/career_start/settings_view_controller.h"

#include <utility>

#include "core/career_start.h"
#include "core/save_backups.h"
#include "screens/career_start/backups_view_controller.h"
#include "screens/career_start/slot_picker_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void restart(Stage& stage) {
  SaveBackupManager::backUp(stage.game());
  restartCareer(stage.game());
  stage.close();
}

void askForRestart(Stage& stage) {
  stage.ask(
      {.title = "Restart?",
       .message = "Your career ends here and a new one begins. Everything you have built is gone, except "
                  "the money in your vault and your permanent upgrades."},
      {{.label = "Keep playing", .weight = Button::Weight::primary},
       {.label = "Restart", .press = restart, .weight = Button::Weight::destructive}});
}

}  // namespace

Page SettingsViewController::view(const Game& game) {
  Page page{.title = "Settings", .offersSaves = true};
  if (game.documents != nullptr) {
    page.nodes.push_back(
        Section{.heading = "CAREERS",
                .nodes = {leadingTo<SlotPickerViewController>("Choose a save",
                                                              "Three careers side by side, and their bank"),
                          leadingTo<BackupsViewController>("Backups", "Go back to an earlier year")}});
  }
  page.nodes.push_back(Section{
      .heading = "NEW CAREER",
      .nodes = {Text{.text = "Ends the career of " + game.world.myName + " and begins another."},
                Button{.label = "Restart?", .press = askForRestart, .weight = Button::Weight::destructive}}});
  return page;
}

}  // namespace tb
