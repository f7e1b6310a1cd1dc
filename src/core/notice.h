#pragma once

#include <optional>
#include <string>

namespace tb {

// What the player is to see when a rule cannot act, or has something to say.
struct Notice {
  std::string title;
  std::string message;
  // Of a refusal: the reason in a few words, for the button that would run into it. The notice is the same
  // with or without it.
  std::string brief = {};
  bool operator==(const Notice& other) const { return title == other.title && message == other.message; }
};

// What a rule of the player's answers: nothing when it was done, else the notice that tells why not.
using Refusal = std::optional<Notice>;

}  // namespace tb
