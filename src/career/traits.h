#pragma once

// The five traits that the player trains with energy. A trait's new value is the energy paid for it (half of
// it for the voice, whose prices are double).

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

struct Trait {
  std::string_view label;
  std::int64_t WorldState::* points;  // 1 and up
  std::int64_t WorldState::* price;   // energy for the next purchase
  std::int64_t pricePerPoint;         // divisor of the price for the new value
};

extern const std::array<Trait, 5> traits;

// The trait's name as "Charisma": some screen readers spell out names in capitals.
[[nodiscard]] std::string spokenName(const Trait& trait);

inline constexpr std::int64_t maxTrait = 100;

// The value after the next purchase, 1 to 100.
[[nodiscard]] std::int64_t nextValue(const WorldState& world, const Trait& trait);

// Why the trait cannot be raised: not enough energy.
[[nodiscard]] Refusal traitRefusal(const WorldState& world, const Trait& trait);

// Raises trait k (1 to 5) for energy. Does nothing at 100 or above; refused without enough energy. A trait
// above its price is set down to it.
Refusal buyTrait(Game& game, int k);

}  // namespace tb
