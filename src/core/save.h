#pragma once

// Saving. A rule changes the state and saves nothing: when the player's action ends, whatever differs from
// what the store holds is written. So no rule can forget a variable, and what an action changes ten times is
// encoded once.
//
// Encoding can't fail: every type of the state has its form in the property list, text that is no UTF-8
// included. What is written is therefore always stored, and the previous value never has to stand in for it.

#include "core/game.h"
#include "core/variables.h"

namespace tb {

// Writes every variable that changed since it was loaded or last saved to the store; of a list, the pieces
// that changed. Durable at the end of the player's action (SaveStore::commit). True when anything was
// written.
bool saveChanges(Game& game);

// Reads a variable back. A key that is missing, a value of another type and data that does not decode leave
// the variable as it is; what is there and is not understood is kept aside in the store, so that nothing is
// lost when the variable is written again.
void loadVariable(Game& game, const Variable& variable);

}  // namespace tb
