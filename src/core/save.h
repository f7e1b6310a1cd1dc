#pragma once

// Saving and loading. Rules do not save: when the player's action ends, all differences from the store are
// written. So no rule can forget a variable, and a value that changes ten times in an action is encoded once.
//
// Encoding can't fail: every value of the state can be represented in a property list, including ill-formed
// UTF-8.

#include "core/damage.h"
#include "core/game.h"
#include "core/variables.h"

namespace tb {

// Writes all variables (for lists, pieces) that changed since they were loaded or last saved to the store.
// Returns true when anything was written. Durable after SaveStore::commit.
bool saveChanges(Game& game);

// Loads a variable. A missing key, a value of another type, or data that can't be decoded does not change the
// variable. Of a list, the elements that can be read are loaded. Unreadable data is set aside in the store,
// and the next save replaces it, so that it is reported once.
Damage loadVariable(Game& game, const Variable& variable);

// Cuts lists of different lengths that are parallel by their rows.
Damage cutParallel(Game& game, const Variable& variable);

}  // namespace tb
