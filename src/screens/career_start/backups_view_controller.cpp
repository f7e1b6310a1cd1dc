#include "screens/career_start/backups_view_controller.h"

#include <utility>

#include "core/calendar.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/save_backups.h"
#include "screens/career_start/save_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

using Info = SaveBackupManager::BackupInfo;

// Backups have the week of the career.
std::string momentOf(const Info& backup) {
  const Int weekOfYear = backup.week > 0 ? (backup.week - 1) % weeksPerYear + 1 : 0;
  return tb::format("Week {} of {}", weekOfYear, backup.year);
}

void restore(Stage& stage, const std::string& url, bool acceptsDamage) {
  SaveBackupManager::restore(stage.game(), url, acceptsDamage, [&stage, url](const TakenUp& backup) {
    if (!backup.damage.empty()) {
      return askAboutDamage(stage, backup.damage, [url](Stage& above) { restore(above, url, true); });
    }
    stage.show(
        backup.isDone
            ? Notice{"Backup Restored", "Fully close and reopen the app to load your restored game."}
            : Notice{"Not Restored", "That backup couldn't be restored. Your current game is unchanged."});
  });
}

void askToRestore(Stage& stage, const Info& backup) {
  stage.ask({.title = tb::format("Restore {}?", momentOf(backup)),
             .message = tb::format("{} as of then takes the place of the career in play, which is backed up "
                                   "first: you can come back to it. The bank is as it was then, too.",
                                   backup.playerName)},
            {{.label = "Keep playing", .weight = Button::Weight::primary},
             {.label = "Restore",
              .press = [url = backup.url](Stage& above) { restore(above, url, false); },
              .weight = Button::Weight::destructive}});
}

void askToDelete(Stage& stage, const Info& backup) {
  tb::askToDelete(stage, "Delete this backup?", "It can't be had back.",
                  [url = backup.url](Stage& above) { SaveBackupManager::remove(above.game(), url); });
}

Button deletion(const Info& backup) {
  return {.label = "Delete",
          .press = [backup](Stage& stage) { askToDelete(stage, backup); },
          .name = "Delete the backup of " + momentOf(backup),
          .weight = Button::Weight::quiet};
}

Card card(const Game& game, const Info& backup) {
  const std::string made = tb::format("Made {} · {}", timeAgo(backup.createdAt, game.clock()),
                                      fileSize(game.locale, backup.sizeBytes));
  if (!backup.isReadable) {
    return {.title = "A damaged backup", .subtitle = made, .nodes = {Buttons{{deletion(backup)}}}};
  }
  return {.title = backup.playerName,
          .subtitle = tb::format("{} · {}", momentOf(backup), cash(game.locale, backup.cash)),
          .nodes = {caption(made), Buttons{{{.label = "Restore",
                                             .press = [backup](Stage& stage) { askToRestore(stage, backup); },
                                             .name = "Restore " + momentOf(backup)},
                                            deletion(backup)}}}};
}

void backUpNow(Stage& stage) {
  stage.say(SaveBackupManager::backUp(stage.game()) ? "Backed up." : "The backup could not be written.");
}

}  // namespace

Page BackupsViewController::view(const Game& game) {
  Page page{.title = "Backups",
            .nodes = {caption("The game backs your career up at each new year and before it is replaced, and "
                              "keeps the last eight.")},
            .main = {{.label = "Back up now", .press = backUpNow, .weight = Button::Weight::primary}}};
  const auto backups = SaveBackupManager::list(game);
  if (!backups) page.nodes.push_back(Text{.text = "The backups can't be read at the moment."});
  for (const Info& backup : backups.value_or(std::vector<Info>{})) page.nodes.push_back(card(game, backup));
  return page;
}

}  // namespace tb
