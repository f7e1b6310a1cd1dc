#pragma once

// A painted line: runs of text with their ink, and the number in the margin.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "screens/view.h"

namespace tb::console {

// The style of a run of text. Without colors all inks look the same, so information must not depend on ink
// alone.
enum class Ink : std::uint8_t { plain, quiet, good, warning, accent, strong, inverse };

[[nodiscard]] Ink inkOf(view::Tone tone);

// The characters for drawing: ASCII only, or with block and line characters.
struct Glyphs {
  std::string_view full;    // filled cell of a bar
  std::string_view rest;    // filled cell of a bar
  std::string_view side;    // left border of a card or a dialog
  std::string_view corner;  // top left corner
  std::string_view rule;    // a line across the page
  std::string_view star, halfStar, noStar;
  std::string_view axis, origin, ground;  // of a plot
  std::string_view eighths[9];            // a plot cell filled from below by 0 to 8 eighths
};

[[nodiscard]] const Glyphs& glyphs(bool blocks);

struct Run {
  std::string text;
  Ink ink = Ink::plain;
};

using Runs = std::vector<Run>;

[[nodiscard]] int columnsOf(const Runs& runs);

// Arranges items side by side with `gap` columns between them, in rows of at most `width` columns. A wider
// item gets its own row.
[[nodiscard]] std::vector<Runs> rowsOf(const std::vector<Runs>& items, int gap, int width);

// The text repeated `count` times.
[[nodiscard]] std::string repeated(std::string_view text, int count);

struct Line {
  std::string margin;  // the item's number, such as "[3]"; can be empty
  Runs runs;
  bool flush = false;  // no margin: rules, the title, the tabs
};

// Columns of the margin for numbers: "[123] ".
inline constexpr int marginWidth = 6;

// The line as bytes, without its line break. Removes control sequences from texts.
[[nodiscard]] std::string printed(const Line& line, bool colours);

}  // namespace tb::console
