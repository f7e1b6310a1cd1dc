#pragma once

#include "core/game.h"

namespace tb {

// Brings the store's career into memory: at launch, and when the store was replaced by a slot or a backup.
// The state starts over first, so that nothing of what was in play before shows through: run-time variables,
// those that are never read back and those whose key is missing have their start values afterwards.
//
// Adds what every career must have and the store lacks: the Basic Needs item, and a fan bonus of 1 for a
// performer without agent.
void loadWorld(Game& game);

}  // namespace tb
