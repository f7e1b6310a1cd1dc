#pragma once

// Refusals that many rules share, in the style of the house: a title between two emoji and one plain
// sentence.

#include <string>
#include <utility>

#include "core/notice.h"

namespace tb {

// The two reasons that stand on more buttons than all others.
inline constexpr char tooLittleEnergy[] = "Too little energy";
inline constexpr char tooLittleCash[] = "Too little cash";

[[nodiscard]] inline Notice notEnoughEnergy(std::string sentence) {
  return {.title = "⚡️ Not Enough Energy ⚡️", .message = std::move(sentence), .brief = tooLittleEnergy};
}

[[nodiscard]] inline Notice notEnoughCash(std::string sentence) {
  return {.title = "💰 Not Enough Cash 💰", .message = std::move(sentence), .brief = tooLittleCash};
}

}  // namespace tb
