#pragma once

#include <vector>

#include "core/damage.h"
#include "core/game.h"

namespace tb {

// Loads the career from the store: at launch, and after the store was replaced by a slot or a backup. The
// state is reset first: runtime variables, variables that are never loaded and variables whose key is missing
// have their start values afterwards. With Reload::everything, variables that are never loaded are loaded,
// too.
//
// Adds what every career must have: the Basic Needs item, and a fan bonus of 1 while no agent is signed.
// While the new-career form is still ahead, the inbox has the welcome e-mails.
//
// Returns what was damaged. The next save replaces it, so that it is returned once.
std::vector<Damage> loadWorld(Game& game, Reload extent = Reload::asAtStart);

}  // namespace tb
