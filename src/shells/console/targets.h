#pragma once

// The usable items of a page and their number marks.

#include <cstdint>
#include <map>
#include <string>

#include "screens/view.h"
#include "shells/console/canvas.h"

namespace tb::console {

// A usable item.
struct Target {
  enum class Kind : std::uint8_t { button, field, slider };
  Kind kind = Kind::button;
  std::string label;
  std::string value;          // current text of a field
  std::string range;          // of a slider, such as "18 to 60"
  int maximumLength = 0;      // of a field, in characters
  bool severalLines = false;  // of a field
  bool operator==(const Target&) const = default;
};

// Collects usable items while the page is drawn, so that only visible items can be used.
struct Targets {
  std::map<view::Handle, Target> all;

  // Returns the mark, such as "[3]"; empty for handle 0.
  std::string add(view::Handle handle, Target target);
};

// A tab, an icon or a button as part of a line.
[[nodiscard]] Runs tabRuns(Targets& targets, const view::Tab& tab);
[[nodiscard]] Runs buttonRuns(Targets& targets, const view::Button& button);

// A button on its own line, with the reason below it when it is off.
void drawButton(Canvas& canvas, Targets& targets, const view::Button& button);

}  // namespace tb::console
