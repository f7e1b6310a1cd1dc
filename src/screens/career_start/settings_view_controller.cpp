#include "screens/career_start/settings_view_controller.h"

#include "core/career_start.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void restart(Stage& stage) {
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
  return {.title = "Settings",
          .nodes = {Section{
              .heading = "NEW CAREER",
              .nodes = {Text{.text = "Ends the career of " + game.world.myName + " and begins another."},
                        Button{.label = "Restart?",
                               .press = askForRestart,
                               .weight = Button::Weight::destructive}}}},
          .offersSaves = true};
}

}  // namespace tb
