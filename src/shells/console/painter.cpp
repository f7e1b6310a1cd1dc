#include "shells/console/painter.h"

#include <algorithm>
#include <format>

#include "shells/console/node_painter.h"
#include "shells/console/text.h"

namespace tb::console {

namespace {

using namespace view;

// Lines of one page edge: the words at the left, what can be used at the right where there is room.
void drawTitle(Canvas& canvas, Targets& targets, const Page& page) {
  std::vector<Runs> right;
  for (const Tab& icon : page.icons) right.push_back(tabRuns(targets, icon));
  for (const Button& close : page.close) right.push_back(buttonRuns(targets, close));
  Runs ways;
  for (const Runs& way : right) {
    if (!ways.empty()) ways.push_back({"  "});
    ways.insert(ways.end(), way.begin(), way.end());
  }

  const std::string title = fitted(page.title, canvas.columns());
  const int between = canvas.columns() - columnsOf(title) - columnsOf(ways);
  Runs line{{title, Ink::strong}};
  if (between < 2) canvas.flush(std::exchange(line, {}));
  line.push_back({repeated(" ", line.empty() ? canvas.columns() - columnsOf(ways) : between)});
  line.insert(line.end(), ways.begin(), ways.end());
  if (!ways.empty() || between >= 2) canvas.flush(std::move(line));
}

std::vector<Line> head(const Page& page, const Surface& surface, Targets& targets) {
  Canvas canvas(surface);
  drawTitle(canvas, targets, page);
  if (!page.subtitle.empty()) {
    for (std::string& part : wrapped(page.subtitle, surface.columns))
      canvas.flush({{std::move(part), Ink::quiet}});
  }
  canvas.rule();
  return canvas.take();
}

std::vector<Line> dialog(const Dialog& asked, const Surface& surface, Targets& targets) {
  Canvas canvas(surface);
  canvas.framed(asked.title, "", [&] {
    // Some messages begin with an empty line of their own.
    const std::size_t start = std::min(asked.message.find_first_not_of('\n'), asked.message.size());
    canvas.text(asked.message.substr(start), Ink::plain);
    canvas.text("", Ink::plain);
    for (const Button& answer : asked.answers) drawButton(canvas, targets, answer);
  });
  return canvas.take();
}

// The tabs on one line; where their icons leave no room for that, without them.
std::vector<Line> foot(const Page& page, const Surface& surface, Targets& targets) {
  if (page.tabs.empty()) return {};
  constexpr int gap = 3;
  const auto runsOf = [&](bool with_icons) {
    std::vector<Runs> items;
    for (Tab tab : page.tabs) {
      if (!with_icons) tab.icon.clear();
      items.push_back(tabRuns(targets, tab));
    }
    return items;
  };
  std::vector<Runs> items = runsOf(true);
  int columns = -gap;
  for (const Runs& item : items) columns += gap + columnsOf(item);
  if (columns > surface.columns) items = runsOf(false);

  Canvas canvas(surface);
  Runs row;
  for (const Runs& item : items) {
    if (!row.empty() && columnsOf(row) + gap + columnsOf(item) > surface.columns) {
      canvas.flush(std::exchange(row, {}));
    }
    if (!row.empty()) row.push_back({repeated(" ", gap)});
    row.insert(row.end(), item.begin(), item.end());
  }
  canvas.flush(std::move(row));
  return canvas.take();
}

}  // namespace

PaintedPage paint(const Page& page, const Surface& surface) {
  PaintedPage painted;
  Targets targets;
  Canvas canvas(surface);
  painted.head = head(page, surface, targets);
  NodePainter nodes(canvas, targets);
  for (const Node& node : page.nodes) nodes.draw(node);
  painted.body = canvas.take();
  painted.counting = nodes.counting();
  if (!page.dialog.empty()) painted.dialog = dialog(page.dialog.front(), surface, targets);
  painted.foot = foot(page, surface, targets);
  painted.targets = std::move(targets.all);
  return painted;
}

}  // namespace tb::console
