#pragma once

// Writing variables through to the store, and reading them back. The one way to do either.

#include "core/game.h"

namespace tb {

// Writes the named variables to the store at once:
//
//   save<&WorldState::totalFans, &WorldState::trackFans>(game);
//
// Lists write their changed pieces only. Durable at the end of the player's action (SaveStore::commit).
template <auto... Members>
void save(Game& game);

// Reads the named variables back. A key that is missing, a value of another type and data that does not
// decode leave the variable as it is; what does not decode is kept aside in the store, so that nothing is
// lost when the variable is written again.
template <auto... Members>
void load(Game& game);

}  // namespace tb
