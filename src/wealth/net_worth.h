#pragma once

// The performer's net worth.

#include "core/game.h"

namespace tb {

// Parts of the net worth, in dollars. Cash can be negative, and so can old vehicles.
struct NetWorth {
  double cash = 0;
  double cards = 0;     // last week's value of the vault
  double property = 0;  // at the current market index
  double vehicles = 0;  // at the current market index, less depreciation
  double ventures = 0;
  double platform = 0;  // the player's share of the streaming company

  [[nodiscard]] double total() const { return cash + cards + property + vehicles + ventures + platform; }
};

[[nodiscard]] NetWorth netWorth(const WorldState& world);

// The value of a home and of a vehicle, in dollars.
[[nodiscard]] double propertyValue(const WorldState& world, const Property& property);
[[nodiscard]] double vehicleValue(const WorldState& world, const Transportation& vehicle);

// Recomputes `saveNetworth`. Call it before showing that value.
void updateNetWorth(Game& game);

}  // namespace tb
