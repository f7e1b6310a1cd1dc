#pragma once

// Writing variables through to the store, and reading them back. The one way to do either.
//
// Encoding can't fail: every type of the state has its form in the property list, text that is no UTF-8
// included. What is written is therefore always stored, and the previous value never has to stand in for it.

#include <span>

#include "core/game.h"

namespace tb {

// Writes the variables to the store at once. Lists write their changed pieces only. Durable at the end of
// the player's action (SaveStore::commit).
void saveVariables(Game& game, std::span<const Variable* const> which);

// Reads the variables back. A key that is missing, a value of another type and data that does not decode
// leave the variable as it is; what is there and is not understood is kept aside in the store, so that
// nothing is lost when the variable is written again.
void loadVariables(Game& game, std::span<const Variable* const> which);

// The same by their names, as rules write and read them:
//
//   save<&WorldState::totalFans, &WorldState::trackFans>(game);
template <auto... Members>
void save(Game& game) {
  static_assert((variableOf<Members> && ...), "a run-time variable is never saved");
  static constexpr const Variable* which[]{variableOf<Members>...};
  saveVariables(game, which);
}

template <auto... Members>
void load(Game& game) {
  static_assert((variableOf<Members> && ...), "a run-time variable is never saved");
  static constexpr const Variable* which[]{variableOf<Members>...};
  loadVariables(game, which);
}

}  // namespace tb
