#pragma once

// The five traits that the player trains. Energy buys them, and a trait tracks what was paid for it: the new
// value is the price paid (half of it for the voice, whose prices run double).

#include <array>
#include <cstdint>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

struct Trait {
  std::string_view label;
  std::int64_t WorldState::* points;  // 1 and up
  std::int64_t WorldState::* price;   // energy for the next purchase
  std::int64_t pricePerPoint;         // the new value is the price paid, divided by this
};

extern const std::array<Trait, 5> traits;

inline constexpr std::int64_t highestTrait = 100;

// The value that the next purchase gives: 1 to 100.
[[nodiscard]] std::int64_t nextValue(const WorldState& world, const Trait& trait);

// Why the next point cannot be bought now: the energy is missing.
[[nodiscard]] Refusal traitRefusal(const WorldState& world, const Trait& trait);

// Buys trait k (1 to 5) for energy. Does nothing from 100 on; refuses without the energy. A trait that chance
// raised above its price falls back to it. Writes the energy, the trait and its next price.
Refusal buyTrait(Game& game, int k);

}  // namespace tb
