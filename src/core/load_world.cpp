#include "core/load_world.h"

#include <memory>

#include "core/career_start.h"
#include "core/save.h"

namespace tb {

namespace {

// In place, not by assignment: a list that was assigned to counts as changed.
void startOver(WorldState& world) {
  std::destroy_at(&world);
  std::construct_at(&world);
}

}  // namespace

void loadWorld(Game& game) {
  startOver(game.world);
  startOver(game.stored);
  for (const Variable& variable : variables()) {
    if (variable.load == Load::atStart) loadVariable(game, variable);
  }
  ensureBasicNeeds(game);
  normaliseAgentFanBonus(game);
}

}  // namespace tb
