#pragma once

// A painted line before it becomes bytes: runs of text with their ink, and the number in the margin.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "screens/view.h"

namespace tb::console {

// What a run of text looks like on a terminal with colours. Without them every ink is the same, so nothing
// is ever said by ink alone.
enum class Ink : std::uint8_t { plain, quiet, good, warning, accent, strong, inverse };

[[nodiscard]] Ink inkOf(view::Tone tone);

// The characters that drawings are made of: ASCII alone, or with the block and line characters that a UTF-8
// terminal has.
struct Glyphs {
  std::string_view full;    // of a bar
  std::string_view rest;    // of a bar
  std::string_view side;    // left of what belongs to a card or a dialog
  std::string_view corner;  // over the side
  std::string_view rule;    // a line across the page
  std::string_view star, halfStar, noStar;
  std::string_view axis, origin, ground;  // of a plot
  std::string_view eighths[9];            // a cell of a plot, filled from below by 0 to 8 eighths
};

[[nodiscard]] const Glyphs& glyphs(bool blocks);

struct Run {
  std::string text;
  Ink ink = Ink::plain;
};

using Runs = std::vector<Run>;

[[nodiscard]] int columnsOf(const Runs& runs);

// Things that stand side by side, `gap` columns apart, on as few rows of at most `width` columns as they
// need. A thing that is wider has a row of its own.
[[nodiscard]] std::vector<Runs> rowsOf(const std::vector<Runs>& items, int gap, int width);

// The text `count` times over.
[[nodiscard]] std::string repeated(std::string_view text, int count);

struct Line {
  std::string margin;  // the number of what stands here, such as "[3]"; may be empty
  Runs runs;
  bool flush = false;  // starts at the left edge and has no margin: rules, the title, the tabs
};

// Columns left of a page's content, where the numbers hang: "[123] ".
inline constexpr int marginWidth = 6;

// The line as bytes, without its line break. Text is cleaned here: nothing that a terminal would obey gets
// out of the game's texts.
[[nodiscard]] std::string printed(const Line& line, bool colours);

}  // namespace tb::console
