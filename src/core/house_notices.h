#pragma once

// Refusals shared by many rules. A refusal has a title between two emoji and one plain sentence.

#include <string>
#include <utility>

#include "core/notice.h"

namespace tb {

// The two most common reasons on buttons.
inline constexpr char tooLittleEnergy[] = "Too little energy";
inline constexpr char tooLittleCash[] = "Too little cash";

[[nodiscard]] inline Notice notEnoughEnergy(std::string sentence) {
  return {.title = "⚡️ Not Enough Energy ⚡️", .message = std::move(sentence), .brief = tooLittleEnergy};
}

[[nodiscard]] inline Notice notEnoughCash(std::string sentence) {
  return {.title = "💰 Not Enough Cash 💰", .message = std::move(sentence), .brief = tooLittleCash};
}

// `need` says in a few words what is missing.
[[nodiscard]] inline Notice requirementsNotMet(std::string need) {
  return {.title = "Requirements Not Met",
          .message = "\nThere is a requirement that you haven't met yet",
          .brief = std::move(need)};
}

}  // namespace tb
