#include "shells/console/canvas.h"

#include <algorithm>

#include "shells/console/text.h"

namespace tb::console {

namespace {

constexpr int minContentWidth = 16;  // deeply nested content can exceed the page's width
constexpr int minLeaderDots = 3;     // dots, with a space on both sides
constexpr int tileGap = 2;

void padTo(Runs& runs, int columns) {
  const int missing = columns - columnsOf(runs);
  if (missing > 0) runs.push_back({repeated(" ", missing)});
}

}  // namespace

Runs Canvas::prefix() const {
  Runs runs;
  for (const std::string& prefix : prefixes_) runs.push_back({prefix, Ink::quiet});
  return runs;
}

int Canvas::width() const { return std::max(minContentWidth, columns_ - marginWidth - columnsOf(prefix())); }

void Canvas::add(Line line) {
  if (gap_) lines_.push_back({.runs = prefix()});
  gap_ = false;
  opened_ = false;
  lines_.push_back(std::move(line));
}

void Canvas::line(Runs runs, std::string margin) {
  Line made{.margin = std::move(margin), .runs = prefix()};
  made.runs.insert(made.runs.end(), runs.begin(), runs.end());
  add(std::move(made));
}

void Canvas::flush(Runs runs) { add({.runs = std::move(runs), .flush = true}); }

void Canvas::text(std::string_view text, Ink ink, const std::string& margin, int hang) {
  bool first = true;
  for (std::string& part : wrapped(text, width() - hang)) {
    const bool hangs = !first && hang > 0;
    line(hangs ? Runs{{repeated(" ", hang)}, {std::move(part), ink}} : Runs{{std::move(part), ink}},
         first ? margin : "");
    first = false;
  }
}

void Canvas::leader(std::string_view label, std::string_view value, Ink labelInk, Ink valueInk,
                    std::string margin) {
  if (value.empty()) return text(label, labelInk, margin, 2);
  const bool single = value.find('\n') == std::string_view::npos;
  const int dots = width() - columnsOf(label) - columnsOf(value) - 2;
  if (single && dots >= minLeaderDots && label.find('\n') == std::string_view::npos) {
    return line({{std::string(label), labelInk},
                 {" " + repeated(".", dots) + " ", Ink::quiet},
                 {std::string(value), valueInk}},
                std::move(margin));
  }
  text(label, labelInk, margin, 2);
  nested("  ", [&] { text(value, valueInk); });
}

void Canvas::flow(const std::vector<Runs>& items) {
  for (Runs& row : rowsOf(items, flowGap, width())) line(std::move(row));
}

void Canvas::grid(const std::vector<std::vector<Run>>& stacks, int narrowest) {
  if (stacks.empty()) return;
  const int most = std::max(1, (width() + tileGap) / (narrowest + tileGap));
  const auto across = static_cast<std::size_t>(std::min(most, static_cast<int>(stacks.size())));
  const int column = (width() + tileGap) / static_cast<int>(across) - tileGap;
  for (std::size_t first = 0; first < stacks.size(); first += across) {
    const std::size_t end = std::min(first + across, stacks.size());
    std::size_t height = 0;
    std::vector<std::vector<Run>> columns;
    for (std::size_t stack = first; stack < end; ++stack) {
      std::vector<Run> lines;
      for (const Run& run : stacks[stack]) {
        for (std::string& part : wrapped(run.text, column)) lines.push_back({std::move(part), run.ink});
      }
      height = std::max(height, lines.size());
      columns.push_back(std::move(lines));
    }
    for (std::size_t row = 0; row < height; ++row) {
      Runs runs;
      for (std::size_t index = 0; index < columns.size(); ++index) {
        padTo(runs, static_cast<int>(index) * (column + tileGap));
        if (row < columns[index].size()) runs.push_back(columns[index][row]);
      }
      line(std::move(runs));
    }
  }
}

void Canvas::rule(std::string_view words) {
  const std::string start = words.empty() ? "" : repeated(glyphs_.rule, 2) + " " + std::string(words) + " ";
  flush({{start + repeated(glyphs_.rule, columns_ - columnsOf(start)), Ink::quiet}});
}

void Canvas::headline(std::string_view heading) {
  if (heading.empty()) return;
  const std::string words = fitted(heading, columns_ - 2);
  flush({{words + " ", Ink::strong}, {repeated(glyphs_.rule, columns_ - columnsOf(words) - 1), Ink::quiet}});
  opened_ = true;
}

void Canvas::openFrame(std::string_view title, std::string margin) {
  std::string_view edge = glyphs_.corner;
  for (std::string& part : wrapped(title, width() - columnsOf(edge) - 1)) {
    line({{std::string(edge) + " ", Ink::quiet}, {std::move(part), Ink::strong}}, std::exchange(margin, ""));
    edge = glyphs_.side;
  }
  opened_ = true;
}

}  // namespace tb::console
