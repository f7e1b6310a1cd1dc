#pragma once

// The people on Latch: an invented person per card.

#include <cstdint>

#include "core/game.h"

namespace tb {

// Values of `saveGenderPreference`; any other value means both.
namespace preference {
inline constexpr std::int64_t men = 0;
inline constexpr std::int64_t women = 1;
inline constexpr std::int64_t both = 2;
}  // namespace preference

// Deals the next card: draws a person to `latchCard`, with the fields that are known before a match, and a
// line to `latchTagline`. Their chemistry is from 5 to 5 + `talentTrait2`.
void generateCandidate(Game& game);

}  // namespace tb
