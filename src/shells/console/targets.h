#pragma once

// What can be used on a page, and how it is marked with its number.

#include <cstdint>
#include <map>
#include <string>

#include "screens/view.h"
#include "shells/console/canvas.h"

namespace tb::console {

// What stands under a number, as far as the player's hand is concerned.
struct Target {
  enum class Kind : std::uint8_t { button, field, slider };
  Kind kind = Kind::button;
  std::string label;
  std::string value;          // of a field, as it is now
  std::string range;          // of a slider, such as "18 to 60"
  int maximumLength = 0;      // of a field, in characters
  bool severalLines = false;  // of a field
  bool operator==(const Target&) const = default;
};

// Collects what stands under each number while the page is drawn, so that what the player can use is just
// what the player sees.
struct Targets {
  std::map<view::Handle, Target> all;

  // The mark of the number, "[3]"; empty for handle 0.
  std::string add(view::Handle handle, Target target);
};

// A tab or an icon, and a button, as part of a line.
[[nodiscard]] Runs tabRuns(Targets& targets, const view::Tab& tab);
[[nodiscard]] Runs buttonRuns(Targets& targets, const view::Button& button);

// A button on a line of its own, with the reason below it when it is off.
void drawButton(Canvas& canvas, Targets& targets, const view::Button& button);

}  // namespace tb::console
