#include "core/load_world.h"

#include <memory>

#include "core/career_start.h"
#include "core/save.h"
#include "core/welcome_mail.h"

namespace tb {

namespace {

// Rebuilt in place: assigning to a list would mark it as changed.
void resetWorld(WorldState& world) {
  std::destroy_at(&world);
  std::construct_at(&world);
}

}  // namespace

std::vector<Damage> loadWorld(Game& game, Reload extent) {
  resetWorld(game.world);
  resetWorld(game.stored);
  std::vector<Damage> damages;
  const auto note = [&damages](const Damage& damage) {
    if (damage.any()) damages.push_back(damage);
  };
  for (const Variable& variable : variables()) {
    if (variable.load == Load::atStart || extent == Reload::everything) note(loadVariable(game, variable));
  }
  for (const Variable& variable : variables()) {
    if (!variable.range.parallel.empty()) note(cutParallel(game, variable));
  }
  ensureBasicNeeds(game);
  normaliseAgentFanBonus(game);
  if (game.world.enterPlayerDetails == 0) sendWelcomeMail(game.world);
  return damages;
}

}  // namespace tb
