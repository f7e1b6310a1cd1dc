#pragma once

#include <optional>
#include <string>

namespace tb {

// What the player is to see when a rule cannot act, or has something to say.
struct Notice {
  std::string title;
  std::string message;
  bool operator==(const Notice&) const = default;
};

// What a rule of the player's answers: nothing when it was done, else the notice that tells why not.
using Refusal = std::optional<Notice>;

}  // namespace tb
