#pragma once

// Collects the lines of a page: content indented by its nesting depth, numbers in the margin.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shells/console/line.h"

namespace tb::console {

// Properties of the output.
struct Surface {
  int columns = 80;     // width of a line, 40 and up
  bool blocks = false;  // true: block and line characters; false: ASCII only
};

// Columns between items on the same line.
inline constexpr int flowGap = 3;

class Canvas {
 public:
  explicit Canvas(const Surface& surface)
      : glyphs_(console::glyphs(surface.blocks)), columns_(surface.columns) {}

  [[nodiscard]] const Glyphs& glyphs() const { return glyphs_; }
  [[nodiscard]] int columns() const { return columns_; }
  [[nodiscard]] int width() const;  // columns for content at the current depth

  // Adds one line, which must fit.
  void line(Runs runs, std::string margin = "");

  // Adds wrapped text; lines after the first are indented by `hang` columns.
  void text(std::string_view text, Ink ink, const std::string& margin = "", int hang = 0);

  // "label ........ value", on several lines if it does not fit one.
  void leader(std::string_view label, std::string_view value, Ink labelInk, Ink valueInk,
              std::string margin = "");

  // Items side by side, wrapped to several lines if needed.
  void flow(const std::vector<Runs>& items);

  // Columns of equal width, each with several lines.
  void grid(const std::vector<std::vector<Run>>& stacks, int narrowest);

  // A horizontal line across the page that starts with `words`.
  void rule(std::string_view words = "");
  void flush(Runs runs);

  // A heading; an empty one is just a blank line.
  void headline(std::string_view heading);

  // Adds a blank line before the next line, except directly below a heading or a frame's title.
  void gap() { gap_ = !lines_.empty() && !opened_; }

  // Prefixes each line that `draw` draws.
  template <class Draw>
  void nested(const std::string& prefix, Draw&& draw) {
    prefixes_.push_back(prefix);
    draw();
    prefixes_.pop_back();
  }

  // A title with a frame around what `draw` draws below it.
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
