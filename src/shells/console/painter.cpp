#include "shells/console/painter.h"

#include <algorithm>
#include <format>

#include "shells/console/icons.h"
#include "shells/console/node_painter.h"
#include "shells/console/text.h"

namespace tb::console {

namespace {

using namespace view;

constexpr int wayGap = 2;  // columns between the icons

// The title on the left; icons and the back button on the right, or below it if they do not fit.
void drawTitle(Canvas& canvas, Targets& targets, const Page& page) {
  std::vector<Runs> ways;
  for (const Tab& icon : page.icons) ways.push_back(tabRuns(targets, icon));
  for (const Button& close : page.close) ways.push_back(buttonRuns(targets, close));
  const std::vector<Runs> rows = rowsOf(ways, wayGap, canvas.columns());

  const std::string title = fitted(page.title, canvas.columns());
  const bool beside =
      rows.size() == 1 && columnsOf(title) + wayGap + columnsOf(rows.front()) <= canvas.columns();
  Runs line{{title, Ink::strong}};
  if (!beside) canvas.flush(std::exchange(line, {}));
  for (const Runs& row : rows) {
    line.push_back({repeated(" ", canvas.columns() - columnsOf(line) - columnsOf(row))});
    line.insert(line.end(), row.begin(), row.end());
    canvas.flush(std::exchange(line, {}));
  }
}

std::vector<Line> head(const Page& page, const Surface& surface, Targets& targets) {
  Canvas canvas(surface);
  drawTitle(canvas, targets, page);
  if (!page.subtitle.empty()) {
    // Puts a subtitle of two lines on one line.
    std::string subtitle = page.subtitle;
    std::ranges::replace(subtitle, '\n', ' ');
    for (std::string& part : wrapped(subtitle, surface.columns))
      canvas.flush({{std::move(part), Ink::quiet}});
  }
  std::vector<Runs> figures;
  for (const StatTile& figure : page.figures)
    figures.push_back(
        {{figure.label + " ", Ink::quiet}, {withGlyph(figure.icon, figure.value), Ink::strong}});
  for (Runs& row : rowsOf(figures, wayGap, surface.columns)) canvas.flush(std::move(row));
  canvas.rule();
  return canvas.take();
}

std::vector<Line> dialog(const Dialog& asked, const Surface& surface, Targets& targets) {
  Canvas canvas(surface);
  canvas.framed(asked.title, "", [&] {
    // Skips empty lines at the start of a message.
    const std::size_t start = std::min(asked.message.find_first_not_of('\n'), asked.message.size());
    canvas.text(asked.message.substr(start), Ink::plain);
    canvas.text("", Ink::plain);
    for (const Button& answer : asked.answers) drawButton(canvas, targets, answer);
  });
  return canvas.take();
}

// A moment is a line with stars around it.
void drawMoment(Canvas& canvas, const Moment& moment) {
  const std::string stars = repeated(canvas.glyphs().star, 3);
  canvas.text(std::format("{} {} {} {} {}", stars, moment.title, stars, moment.line, stars), Ink::accent);
  canvas.gap();
}

// The main action, and the tabs on one line, without their icons if they do not fit.
std::vector<Line> foot(const Page& page, const Surface& surface, Targets& targets) {
  const auto rowsWith = [&](bool icons) {
    std::vector<Runs> items;
    for (Tab tab : page.tabs) {
      if (tab.isOff) continue;
      if (!icons) tab.icon = Icon::none;
      items.push_back(tabRuns(targets, tab));
    }
    return rowsOf(items, flowGap, surface.columns);
  };
  std::vector<Runs> rows = rowsWith(true);
  if (rows.size() > 1) rows = rowsWith(false);
  Canvas canvas(surface);
  for (const Button& main : page.main) drawButton(canvas, targets, main);
  for (Runs& row : rows) canvas.flush(std::move(row));
  return canvas.take();
}

}  // namespace

PaintedPage paint(const Page& page, const Surface& surface) {
  PaintedPage painted;
  Targets targets;
  Canvas canvas(surface);
  painted.head = head(page, surface, targets);
  NodePainter nodes(canvas, targets);
  for (const Moment& moment : page.moment) drawMoment(canvas, moment);
  for (const Node& node : page.nodes) nodes.draw(node);
  painted.body = canvas.take();
  painted.counting = nodes.counting();
  if (!page.dialog.empty()) painted.dialog = dialog(page.dialog.front(), surface, targets);
  painted.foot = foot(page, surface, targets);
  painted.targets = std::move(targets.all);
  return painted;
}

}  // namespace tb::console
