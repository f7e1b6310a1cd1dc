#pragma once

// Paints a laid-out page as lines of text. Usable items have their handle as a number.

#include <map>
#include <vector>

#include "screens/view.h"
#include "shells/console/canvas.h"
#include "shells/console/line.h"
#include "shells/console/targets.h"

namespace tb::console {

struct PaintedPage {
  std::vector<Line> head;  // title, icons, back button and figures
  std::vector<Line> body;
  std::vector<Line> dialog;  // covers the body; empty when there is none
  std::vector<Line> foot;    // main action and tabs
  std::map<view::Handle, Target> targets;
  bool counting = false;  // has a running countdown
};

// `page` must be laid out: with handles and without PagedList nodes.
[[nodiscard]] PaintedPage paint(const view::Page& page, const Surface& surface);

}  // namespace tb::console
