#include "screens/career_start/settings_view_controller.h"

#include <utility>

#include "core/career_start.h"
#include "core/format.h"
#include "core/save_backups.h"
#include "core/save_store.h"
#include "core/way_back.h"
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

// Goes to another week of the career by `moves`, after asking.
Operation movesTo(const CareerWeek& week, Notice question, std::string answer, bool (*moves)(Game&)) {
  const auto move = [week, moves](Stage& stage) {
    stage.say(moves(stage.game()) ? tb::format("This is week {} of {}.", week.week, week.year)
                                  : "That week can't be had back. Your career is as it was.");
  };
  return [question = std::move(question), answer = std::move(answer), move](Stage& stage) {
    stage.ask(question, {{.label = "Keep playing", .weight = Button::Weight::primary},
                         {.label = answer, .press = move, .weight = Button::Weight::destructive}});
  };
}

Row backRow(const CareerWeek& week) {
  const std::string when = tb::format("week {} of {}", week.week, week.year);
  return {
      .label = "Back to last week",
      .detail = "To " + when + ", before it ended",
      .press = movesTo(week,
                       {.title = "Back to " + when + "?",
                        .message = "The career is again as it was right before you ended that week. The "
                                   "week's outcome and all that you did after it are undone.\n\nUntil you "
                                   "end a week again, Settings can undo this."},
                       "Go back", backToLastWeek)};
}

Row returnRow(const CareerWeek& week) {
  const std::string when = tb::format("week {} of {}", week.week, week.year);
  return {.label = "Undo going back",
          .detail = "Return to " + when,
          .press = movesTo(week,
                           {.title = "Return to " + when + "?",
                            .message = "The career is again as it was when you went back. What you did since "
                                       "then is lost."},
                           "Return", returnToWeek)};
}

Section lastWeeks(const Game& game) {
  Section section{.heading = "LAST WEEKS"};
  if (game.world.hasNoWayBack) {
    section.nodes.push_back(Text{.text = "This career was started with no way back."});
    return section;
  }
  if (const auto week = lastWeek(game.store)) section.nodes.push_back(backRow(*week));
  if (const auto week = weekTakenBack(game.store)) section.nodes.push_back(returnRow(*week));
  section.nodes.push_back(caption(tb::format("{} of up to {} weeks can be taken back.",
                                             game.store.weeks().weeksBack(), WeekHistory::maxWeeks)));
  return section;
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
  page.nodes.push_back(lastWeeks(game));
  page.nodes.push_back(Section{
      .heading = "NEW CAREER",
      .nodes = {Text{.text = "Ends the career of " + game.world.myName + " and begins another."},
                Button{.label = "Restart?", .press = askForRestart, .weight = Button::Weight::destructive}}});
  return page;
}

}  // namespace tb
