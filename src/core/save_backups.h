#pragma once

// Backups: dated copies of the whole store. The game makes one by itself at each new year and before a
// restore, a switch or deletion of a slot, or a restart.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/documents.h"
#include "core/game.h"

namespace tb {

class SaveBackupManager {
 public:
  static constexpr std::size_t maxBackups = 8;
  static constexpr std::string_view backupFolderName = "SaveBackups";
  static constexpr std::string_view fileExtension = "plist";

  struct BackupInfo {
    std::string url;  // the document's name in the folder
    plist::Date createdAt;
    std::string playerName;
    Int week = 0;
    Int year = 0;
    Real cash = 0;
    Int sizeBytes = 0;
    bool isReadable = true;
  };

  // Backs up the store and removes the oldest backups beyond maxBackups. Returns false when nothing was
  // written: without documents, before the new-career form is done, or after a failure, which is logged.
  static bool backUp(Game& game);

  // The same with the values of any store, at a time.
  static bool backUp(Documents& documents, const plist::Dictionary& values, plist::Date now);

  // Newest first; nothing when the backups can't be read.
  [[nodiscard]] static std::optional<std::vector<BackupInfo>> list(const Game& game);

  // Replaces the store with a backup, after backing the store up. A backup of another slot continues that
  // slot, and the career in play is saved to its own. A backup without the keys that belong to no slot leaves
  // them as they are. It is not done, and nothing was changed, when the backup can't be read, and for a
  // damaged one unless `acceptsDamage`.
  static void restore(Game& game, const std::string& url, bool acceptsDamage,
                      std::function<void(const TakenUp&)> then);

  static void remove(Game& game, const std::string& url);
};

}  // namespace tb
