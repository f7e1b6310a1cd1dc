#pragma once

// What every rule works on. Rules are free functions over Game&, or over less where that is enough.

#include "core/locale.h"
#include "core/random.h"
#include "core/save_store.h"
#include "core/told_rows.h"
#include "core/world_state.h"

namespace tb {

struct Game {
  SaveStore& store;
  RandomSource& random;
  Locale locale = {};
  WorldState world = {};
  ToldRows told = {};
};

}  // namespace tb
