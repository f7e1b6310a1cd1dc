#pragma once

// A laid-out page as lines of text. What can be used has its number before it; the numbers are the handles.

#include <map>
#include <string>
#include <vector>

#include "screens/view.h"
#include "shells/console/canvas.h"
#include "shells/console/line.h"

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

struct PaintedPage {
  std::vector<Line> head;  // the title, the icons and the way back
  std::vector<Line> body;
  std::vector<Line> dialog;  // over the body; empty when there is none
  std::vector<Line> foot;    // the tabs
  std::map<view::Handle, Target> targets;
  bool counting = false;  // time runs on this page
};

// `page` is a laid-out one: without a PagedList, and with its handles.
[[nodiscard]] PaintedPage paint(const view::Page& page, const Surface& surface);

}  // namespace tb::console
