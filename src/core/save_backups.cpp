#include "core/save_backups.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "core/calendar.h"
#include "core/debug_log.h"
#include "core/format.h"
#include "core/save_file.h"
#include "core/save_slots.h"
#include "core/save_store.h"
#include "core/stored_value.h"

namespace tb {

namespace {

using Backups = SaveBackupManager;

constexpr std::string_view namePrefix = "save-";

// Such as "save-2026-11-22-093000.plist". In UTC: the order of names is the order of time wherever the player
// travels.
std::string backupName(plist::Date date) {
  using namespace std::chrono;
  const sys_seconds time =
      sys_days{2001y / January / 1} + seconds(static_cast<std::int64_t>(std::floor(date.seconds)));
  const year_month_day day{floor<days>(time)};
  const hh_mm_ss clock{time - floor<days>(time)};
  return tb::format("{}{}-{}-{}-{}{}{}.{}", namePrefix, static_cast<int>(day.year()),
                    twoDigits(static_cast<unsigned>(day.month())),
                    twoDigits(static_cast<unsigned>(day.day())), twoDigits(clock.hours().count()),
                    twoDigits(clock.minutes().count()), twoDigits(clock.seconds().count()),
                    Backups::fileExtension);
}

// Oldest first.
std::optional<std::vector<DocumentSummary>> backupsIn(const Documents& documents) {
  auto all = documents.list(Backups::backupFolderName);
  if (!all) return all;
  std::erase_if(*all, [](const DocumentSummary& document) {
    return !document.name.starts_with(namePrefix) || !document.name.ends_with(Backups::fileExtension);
  });
  return all;
}

// The time in a backup's name; nothing for a file of another name.
std::optional<plist::Date> dateIn(std::string_view name) {
  using namespace std::chrono;
  const auto number = [name](std::size_t at, std::size_t length) {
    int value = -1;
    if (at + length <= name.size()) std::from_chars(name.data() + at, name.data() + at + length, value);
    return value;
  };
  const year_month_day day{year(number(5, 4)), month(static_cast<unsigned>(number(10, 2))),
                           std::chrono::day(static_cast<unsigned>(number(13, 2)))};
  if (!day.ok()) return std::nullopt;
  const sys_seconds time =
      sys_days(day) + hours(number(16, 2)) + minutes(number(18, 2)) + seconds(number(20, 2));
  const plist::Date date{static_cast<double>((time - sys_days{2001y / January / 1}).count())};
  return backupName(date) == name ? std::optional(date) : std::nullopt;
}

// Later than every name that is taken, even if two backups are made within a second or the clock was set
// back: the oldest name is the next to go.
std::string freeName(const std::vector<DocumentSummary>& taken, plist::Date date) {
  for (const DocumentSummary& document : taken) {
    const auto other = dateIn(document.name);
    if (other) date.seconds = std::max(date.seconds, other->seconds + 1);
  }
  return backupName(date);
}

Backups::BackupInfo infoOf(const DocumentSummary& document) {
  const plist::Dictionary head = document.head.value_or(plist::Dictionary{});
  return {.url = document.name,
          .createdAt = document.changed,
          .playerName = storedValue<std::string>(head, "myName"),
          .week = storedValue<Int>(head, "weekNumberForTracking"),
          .year = storedValue<Int>(head, "yearNumber"),
          .cash = storedValue<Real>(head, "totalCashAvailable"),
          .sizeBytes = document.size,
          .isReadable = document.head.has_value()};
}

std::optional<plist::Dictionary> careerIn(const std::optional<Bytes>& content) {
  if (!content) return std::nullopt;
  const auto value = plist::read(*content);
  if (!value) {
    debugLog("SaveBackupManager: restore failed: " + std::string(plist::describe(value.error())));
    return std::nullopt;
  }
  const auto* const values = value->as<plist::Dictionary>();
  if (values == nullptr || !hasBegun(*values)) return std::nullopt;
  return *values;
}

// The restored career continues in the slot that it was in.
void replaceStore(Game& game, plist::Dictionary values) {
  for (auto& [key, value] : SlotManager::sharedValues(game.world)) {
    if (!std::ranges::contains(values, key, &plist::Dictionary::value_type::first)) {
      values.emplace_back(key, std::move(value));
    }
  }
  game.store.replace(values);
  game.reload = Reload::asAtStart;
}

TakenUp takeUp(Game& game, std::optional<plist::Dictionary> values, bool acceptsDamage) {
  if (!values) return {};
  std::string damage = takeDamage(*values, game.random);
  if (!damage.empty() && !acceptsDamage) return {.damage = std::move(damage)};
  if (!SlotManager::saveCurrent(game)) return {};
  Backups::backUp(game);
  replaceStore(game, *std::move(values));
  return {.isDone = true};
}

void removeBackup(Documents& documents, const std::string& url) {
  if (const auto done = documents.remove(Backups::backupFolderName, url); !done) {
    debugLog("SaveBackupManager: backup write failed: " + done.error());
  }
}

}  // namespace

bool SaveBackupManager::backUp(Game& game) {
  return game.documents != nullptr && backUp(*game.documents, game.store.dictionary(), game.clock());
}

bool SaveBackupManager::backUp(Documents& documents, const plist::Dictionary& values, plist::Date now) {
  if (!hasBegun(values)) return false;
  const auto before = backupsIn(documents);
  if (!before) {
    debugLog("SaveBackupManager: backup write failed: The backups can't be read.");
    return false;
  }
  const auto done = documents.write(backupFolderName, freeName(*before, now), saveFile(values));
  if (!done) {
    debugLog(std::string(done.error().isFolder ? "SaveBackupManager: could not create backup directory: "
                                               : "SaveBackupManager: backup write failed: ") +
             done.error().reason);
    return false;
  }
  const auto all = backupsIn(documents).value_or(std::vector<DocumentSummary>{});
  for (std::size_t oldest = 0; oldest + maxBackups < all.size(); ++oldest) {
    removeBackup(documents, all[oldest].name);
  }
  return true;
}

std::optional<std::vector<SaveBackupManager::BackupInfo>> SaveBackupManager::list(const Game& game) {
  const auto documents = game.documents == nullptr ? std::nullopt : backupsIn(*game.documents);
  if (!documents) return std::nullopt;
  std::vector<BackupInfo> infos;
  for (const DocumentSummary& document : *documents) infos.push_back(infoOf(document));
  std::ranges::reverse(infos);
  return infos;
}

void SaveBackupManager::restore(Game& game, const std::string& url, bool acceptsDamage,
                                std::function<void(const TakenUp&)> then) {
  if (game.documents == nullptr) return then({});
  game.documents->read(backupFolderName, url,
                       [&game, acceptsDamage, then = std::move(then)](const std::optional<Bytes>& content) {
                         then(takeUp(game, careerIn(content), acceptsDamage));
                       });
}

void SaveBackupManager::remove(Game& game, const std::string& url) {
  if (game.documents != nullptr) removeBackup(*game.documents, url);
}

}  // namespace tb
