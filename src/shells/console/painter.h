#pragma once

// A laid-out page as lines of text. What can be used has its number before it; the numbers are the handles.

#include <map>
#include <vector>

#include "screens/view.h"
#include "shells/console/canvas.h"
#include "shells/console/line.h"
#include "shells/console/targets.h"

namespace tb::console {

struct PaintedPage {
  std::vector<Line> head;  // the title, the icons and the way back, the figures that are always in view
  std::vector<Line> body;
  std::vector<Line> dialog;  // over the body; empty when there is none
  std::vector<Line> foot;    // what the page is for, and the tabs
  std::map<view::Handle, Target> targets;
  bool counting = false;  // time runs on this page
};

// `page` is a laid-out one: without a PagedList, and with its handles.
[[nodiscard]] PaintedPage paint(const view::Page& page, const Surface& surface);

}  // namespace tb::console
