#include "core/save_slots.h"

#include <algorithm>
#include <utility>

#include "core/debug_log.h"
#include "core/format.h"
#include "core/save_backups.h"
#include "core/save_file.h"
#include "core/save_store.h"
#include "core/stored_value.h"

namespace tb {

namespace {

using Slots = SlotManager;

constexpr std::string_view vaultKey = "crossSaveVault";

std::string slotName(Int index) { return tb::format("slot-{}.plist", index); }

void removeSharedValues(plist::Dictionary& values) {
  std::erase_if(values, [](const auto& entry) {
    return entry.first == Slots::activeSlotKey || entry.first == vaultKey;
  });
}

Slots::SlotSummary summaryOf(Int index, const plist::Dictionary& values) {
  return {.index = index,
          .isEmpty = !hasBegun(values),
          .name = storedValue<std::string>(values, "myName"),
          .year = storedValue<Int>(values, "yearNumber"),
          .netWorth = storedValue<Real>(values, "saveNetworth"),
          .fans = storedValue<Int>(values, "totalFans"),
          .boxOffice = storedValue<Int>(values, "saveBoxOffice"),
          .lastPlayed = {}};
}

Slots::SlotSummary summaryInPlay(Int index, const WorldState& world) {
  return {.index = index,
          .isEmpty = world.enterPlayerDetails == 0,
          .name = world.myName,
          .year = world.yearNumber,
          .netWorth = world.saveNetworth,
          .fans = world.totalFans,
          .boxOffice = world.saveBoxOffice,
          .lastPlayed = {}};
}

// The content of a slot; nothing for a damaged one.
std::optional<plist::Dictionary> contentOf(const std::optional<Bytes>& document, Int index) {
  if (!document) return std::nullopt;
  const auto value = plist::read(*document);
  const auto* const values = value ? value->as<plist::Dictionary>() : nullptr;
  if (values != nullptr) return *values;
  debugLog(tb::format("SlotManager: load slot {} failed: {}", index,
                      value ? "It is not a save." : plist::describe(value.error())));
  return std::nullopt;
}

// An empty dictionary begins a career.
void replaceStore(Game& game, plist::Dictionary values, Int index) {
  removeSharedValues(values);
  for (auto& entry : Slots::sharedValues(game.world)) values.push_back(std::move(entry));
  std::ranges::find(values, Slots::activeSlotKey, &plist::Dictionary::value_type::first)->second =
      plist::Value{std::to_string(index)};
  game.store.replace(values);
  game.reload = Reload::asAtStart;
}

// Saves the career in play, and another one takes its place.
TakenUp play(Game& game, std::optional<plist::Dictionary> values, Int index, bool acceptsDamage) {
  if (!values) return {};
  std::string damage = takeDamage(*values, game.random);
  if (!damage.empty() && !acceptsDamage) return {.damage = std::move(damage)};
  if (!Slots::saveCurrent(game)) return {};
  SaveBackupManager::backUp(game);
  replaceStore(game, *std::move(values), index);
  return {.isDone = true};
}

std::optional<std::vector<DocumentSummary>> documentsOf(const Game& game) {
  return game.documents == nullptr ? std::optional<std::vector<DocumentSummary>>{}
                                   : game.documents->list(Slots::slotFolderName);
}

Slots::SlotSummary summaryOf(Int index, const std::optional<std::vector<DocumentSummary>>& documents) {
  if (!documents)
    return {.index = index, .isEmpty = false, .name = {}, .lastPlayed = {}, .isReadable = false};
  const auto document = std::ranges::find(*documents, slotName(index), &DocumentSummary::name);
  if (document == documents->end()) return {.index = index, .name = {}, .lastPlayed = {}};
  Slots::SlotSummary summary = summaryOf(index, document->head.value_or(plist::Dictionary{}));
  summary.lastPlayed = document->changed;
  summary.isReadable = document->head.has_value();
  return summary;
}

}  // namespace

Int SlotManager::activeSlot(const WorldState& world) {
  for (Int index = 1; index < slotCount; ++index) {
    if (world.activeSaveSlot == std::to_string(index)) return index;
  }
  return 0;
}

plist::Dictionary SlotManager::sharedValues(const WorldState& world) {
  return {{std::string(activeSlotKey), plist::Value{std::to_string(activeSlot(world))}},
          {std::string(vaultKey), plist::Value{world.crossSaveVault}}};
}

std::vector<SlotManager::SlotSummary> SlotManager::summaries(const Game& game) {
  const auto documents = documentsOf(game);
  std::vector<SlotSummary> all;
  for (Int index = 0; index < slotCount; ++index) {
    all.push_back(index == activeSlot(game.world) ? summaryInPlay(index, game.world)
                                                  : summaryOf(index, documents));
  }
  return all;
}

void SlotManager::switchTo(Game& game, Int index, bool acceptsDamage,
                           std::function<void(const TakenUp&)> then) {
  if (game.documents == nullptr || index == activeSlot(game.world)) return;
  const auto documents = documentsOf(game);
  if (!documents) return then({});
  if (!std::ranges::contains(*documents, slotName(index), &DocumentSummary::name)) {
    return then(play(game, plist::Dictionary{}, index, acceptsDamage));
  }
  game.documents->read(
      slotFolderName, slotName(index),
      [&game, index, acceptsDamage, then = std::move(then)](const std::optional<Bytes>& document) {
        then(play(game, contentOf(document, index), index, acceptsDamage));
      });
}

bool SlotManager::saveCurrent(Game& game) {
  if (game.documents == nullptr) return false;
  const Int index = activeSlot(game.world);
  plist::Dictionary values = game.store.dictionary();
  removeSharedValues(values);
  const auto done = game.documents->write(slotFolderName, slotName(index), saveFile(std::move(values)));
  if (done) return true;
  debugLog(done.error().isFolder
               ? "SlotManager: could not create slots directory: " + done.error().reason
               : tb::format("SlotManager: save to slot {} failed: {}", index, done.error().reason));
  return false;
}

void SlotManager::remove(Game& game, Int index) {
  if (game.documents == nullptr || index == activeSlot(game.world)) return;
  game.documents->read(slotFolderName, slotName(index), [&game, index](const std::optional<Bytes>& document) {
    if (const auto values = contentOf(document, index)) {
      SaveBackupManager::backUp(*game.documents, *values, game.clock());
    }
    if (const auto done = game.documents->remove(slotFolderName, slotName(index)); !done) {
      debugLog(tb::format("SlotManager: delete slot {} failed: {}", index, done.error()));
    }
  });
}

bool depositInBank(WorldState& world, Real amount) {
  if (!(amount > 0) || amount > world.totalCashAvailable) return false;
  world.totalCashAvailable -= amount;
  world.crossSaveVault += amount;
  return true;
}

bool withdrawFromBank(WorldState& world, Real amount) {
  if (!(amount > 0) || amount > world.crossSaveVault) return false;
  world.crossSaveVault -= amount;
  world.totalCashAvailable += amount;
  return true;
}

}  // namespace tb
