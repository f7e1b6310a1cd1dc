#pragma once

// What a rule works on. Rules are free functions over Game&, or over less when that is enough.

#include <cstdint>

#include "core/clock.h"
#include "core/locale.h"
#include "core/random.h"
#include "core/recent_rows.h"
#include "core/world_state.h"

namespace tb {

class Documents;
class SaveStore;

// What the App loads when the action ends, instead of saving, because a rule replaced the store's content.
enum class Reload : std::uint8_t {
  none,
  asAtStart,
  everything,  // also what a launch does not load: the game was not closed in between
};

struct Game {
  SaveStore& store;
  RandomSource& random;
  Locale locale = {};
  WorldState world = {};
  WorldState stored = {};  // the plain variables as the store holds them (core/save.h); its lists stay empty
  RecentRows recentRows = {};
  Clock clock = stoppedClock;
  Documents* documents = nullptr;  // null where the shell keeps none: there are no slots and no backups then
  Reload reload = Reload::none;
};

}  // namespace tb
