#pragma once

#include <optional>
#include <string>

namespace tb {

// A message to the player: why a rule cannot act, or what it did.
struct Notice {
  std::string title;
  std::string message;
  // For a refusal: the reason in a few words, shown on the button before it is pressed.
  std::string brief = {};
  bool operator==(const Notice& other) const { return title == other.title && message == other.message; }
};

// The result of a player's action: nothing when it was done, else the notice that says why not.
using Refusal = std::optional<Notice>;

}  // namespace tb
