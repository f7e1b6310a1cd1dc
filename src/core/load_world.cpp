#include "core/load_world.h"

#include <memory>

#include "core/career_start.h"
#include "core/save.h"

namespace tb {

namespace {

// Rebuilt in place: assigning to a list would mark it as changed.
void resetWorld(WorldState& world) {
  std::destroy_at(&world);
  std::construct_at(&world);
}

}  // namespace

void loadWorld(Game& game, Reload extent) {
  resetWorld(game.world);
  resetWorld(game.stored);
  for (const Variable& variable : variables()) {
    if (variable.load == Load::atStart || extent == Reload::everything) loadVariable(game, variable);
  }
  ensureBasicNeeds(game);
  normaliseAgentFanBonus(game);
}

}  // namespace tb
