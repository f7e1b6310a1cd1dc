#pragma once

// Slots: parallel careers. The store has the career in play; each slot's document has the career as it was
// when the player last left it. The bank and the key of the active slot belong to no slot: they stay in the
// store.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/documents.h"
#include "core/game.h"

namespace tb {

class SlotManager {
 public:
  static constexpr Int slotCount = 3;
  static constexpr std::string_view activeSlotKey = "activeSaveSlot";
  static constexpr std::string_view slotFolderName = "SaveSlots";

  struct SlotSummary {
    Int index = 0;  // from 0
    bool isEmpty = true;
    std::string name;
    Int year = 0;
    Real netWorth = 0;
    Int fans = 0;
    std::int64_t boxOffice = 0;
    std::optional<plist::Date> lastPlayed;  // when the document was written; nothing for the slot in play
    bool isReadable = true;                 // false for a damaged document, or when there is no telling
  };

  // The slot in play: 0 until the first switch.
  [[nodiscard]] static Int activeSlot(const WorldState& world);

  // All slots; the active one as it is in play.
  [[nodiscard]] static std::vector<SlotSummary> summaries(const Game& game);

  // Saves the career in play to its slot and plays another slot; an empty one begins with the new-career
  // form. It is not done, and nothing was changed, if a document can't be read or written, and for a damaged
  // slot unless `acceptsDamage`. Does nothing for the active slot.
  static void switchTo(Game& game, Int index, bool acceptsDamage, std::function<void(const TakenUp&)> then);

  // Saves the career in play to its slot. False after a failure, which is logged.
  static bool saveCurrent(Game& game);

  // The values that belong to no slot.
  [[nodiscard]] static plist::Dictionary sharedValues(const WorldState& world);

  // Deletes a slot that is not in play, after backing it up.
  static void remove(Game& game, Int index);
};

// The bank, whose cash all slots share (crossSaveVault). Both do nothing and return false for an amount of 0
// or less, for more than there is, or for no number.
bool depositInBank(WorldState& world, Real amount);
bool withdrawFromBank(WorldState& world, Real amount);

}  // namespace tb
