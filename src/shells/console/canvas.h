#pragma once

// What the painter draws on: lines from top to bottom, content indented as deep as it is nested, numbers in
// the margin.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shells/console/line.h"

namespace tb::console {

// Where a page is painted.
struct Surface {
  int columns = 80;     // of a line, 40 and up
  bool blocks = false;  // draws with block and line characters too, else with ASCII alone
};

// Columns between things that stand side by side.
inline constexpr int flowGap = 3;

class Canvas {
 public:
  explicit Canvas(const Surface& surface)
      : glyphs_(console::glyphs(surface.blocks)), columns_(surface.columns) {}

  [[nodiscard]] const Glyphs& glyphs() const { return glyphs_; }
  [[nodiscard]] int columns() const { return columns_; }
  [[nodiscard]] int width() const;  // what is left for content at this depth

  // One line, that has to fit.
  void line(Runs runs, std::string margin = "");

  // Text on as many lines as it needs, the lines after the first `hang` columns further in.
  void text(std::string_view text, Ink ink, const std::string& margin = "", int hang = 0);

  // "label ........ value", on two lines or more when they do not fit one.
  void leader(std::string_view label, std::string_view value, Ink label_ink, Ink value_ink,
              std::string margin = "");

  // Things that stand side by side, on as many lines as they need.
  void flow(const std::vector<Runs>& items);

  // Columns of equal width, each a small stack of lines.
  void grid(const std::vector<std::vector<Run>>& stacks, int narrowest);

  // A line from edge to edge, the words at its start.
  void rule(std::string_view words = "");
  void flush(Runs runs);

  // A heading over the lines that follow; an empty one only sets them apart.
  void headline(std::string_view heading);

  // Keeps the next line apart from the last one; right under a heading or a frame's title it does nothing.
  void gap() { gap_ = !lines_.empty() && !opened_; }

  // What `draw` draws has `prefix` before each line.
  template <class Draw>
  void nested(const std::string& prefix, Draw&& draw) {
    prefixes_.push_back(prefix);
    draw();
    prefixes_.pop_back();
  }

  // A title, and what `draw` draws in a frame under it.
  template <class Draw>
  void framed(std::string_view title, std::string margin, Draw&& draw) {
    openFrame(title, std::move(margin));
    nested(std::string(glyphs_.side), std::forward<Draw>(draw));
  }

  [[nodiscard]] std::vector<Line> take() { return std::exchange(lines_, {}); }

 private:
  [[nodiscard]] Runs prefix() const;
  void openFrame(std::string_view title, std::string margin);
  void add(Line line);

  const Glyphs& glyphs_;
  int columns_;
  std::vector<std::string> prefixes_;
  std::vector<Line> lines_;
  bool gap_ = false;
  bool opened_ = false;  // the last line was a heading
};

}  // namespace tb::console
