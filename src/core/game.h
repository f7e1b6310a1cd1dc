#pragma once

// What every rule works on. Rules are free functions over Game&, or over less where that is enough.

#include "core/clock.h"
#include "core/locale.h"
#include "core/random.h"
#include "core/told_rows.h"
#include "core/world_state.h"

namespace tb {

class SaveStore;

struct Game {
  SaveStore& store;
  RandomSource& random;
  Locale locale = {};
  WorldState world = {};
  WorldState stored = {};  // the plain variables as the store holds them (core/save.h); its lists stay empty
  ToldRows told = {};
  Clock clock = stoppedClock;
};

}  // namespace tb
