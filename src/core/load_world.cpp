#include "core/load_world.h"

#include "core/career_start.h"
#include "core/save.h"

namespace tb {

namespace {

void loadAll(Game& game, Load wanted) {
  for (const Variable& variable : variables) {
    if (variable.load == wanted) loadVariables(game, {{&variable}});
  }
}

}  // namespace

void loadWorld(Game& game) {
  game.world = WorldState{};
  loadAll(game, Load::atStart);
  loadAll(game, Load::lists);
  ensureBasicNeeds(game);
  normaliseAgentFanBonus(game);
}

}  // namespace tb
