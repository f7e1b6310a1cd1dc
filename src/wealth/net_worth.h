#pragma once

// What the performer is worth.

#include "core/game.h"

namespace tb {

// Parts of the net worth, in dollars. Cash can be negative, and so can vehicles: an old one is a burden.
struct NetWorth {
  double cash = 0;
  double cards = 0;     // the vault, as of the last week
  double property = 0;  // at the market index of today
  double vehicles = 0;  // the same, less what age took
  double ventures = 0;
  double platform = 0;  // the share in the streaming company

  [[nodiscard]] double total() const { return cash + cards + property + vehicles + ventures + platform; }
};

[[nodiscard]] NetWorth netWorth(const WorldState& world);

// What one home, and one vehicle, adds to it.
[[nodiscard]] double propertyValue(const WorldState& world, const Property& property);
[[nodiscard]] double vehicleValue(const WorldState& world, const Transportation& vehicle);

// Computes it anew into `saveNetworth`, and writes that. Before any text that speaks of it.
void keepNetWorth(Game& game);

}  // namespace tb
