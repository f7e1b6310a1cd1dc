#pragma once

// What a rule works on. Rules are free functions over Game&, or over less when that is enough.

#include "core/clock.h"
#include "core/locale.h"
#include "core/random.h"
#include "core/recent_rows.h"
#include "core/world_state.h"

namespace tb {

class Documents;
class SaveStore;

struct Game {
  SaveStore& store;
  RandomSource& random;
  Locale locale = {};
  WorldState world = {};
  WorldState stored = {};  // the plain variables as the store holds them (core/save.h); its lists stay empty
  RecentRows recentRows = {};
  Clock clock = stoppedClock;
  Documents* documents = nullptr;  // null where the shell keeps none: there are no slots and no backups then
  // A rule replaced the content of the store: the App loads it when the action ends, instead of saving.
  bool loadsStore = false;
};

}  // namespace tb
