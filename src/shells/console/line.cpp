#include "shells/console/line.h"

#include <algorithm>
#include <utility>

#include "shells/console/text.h"

namespace tb::console {

namespace {

constexpr Glyphs asciiGlyphs{.full = "#",
                             .rest = "-",
                             .side = "| ",
                             .corner = "+-",
                             .rule = "-",
                             .star = "*",
                             .halfStar = "+",
                             .noStar = ".",
                             .axis = "|",
                             .origin = "+",
                             .ground = "-",
                             .eighths = {" ", ".", ".", ".", ":", ":", ":", "#", "#"}};

constexpr Glyphs blockGlyphs{.full = "█",
                             .rest = "░",
                             .side = "│ ",
                             .corner = "┌─",
                             .rule = "─",
                             .star = "★",
                             .halfStar = "½",
                             .noStar = "☆",
                             .axis = "│",
                             .origin = "└",
                             .ground = "─",
                             .eighths = {" ", "▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"}};

// Colors of the terminal's palette, so that its dark or light theme is respected.
std::string_view startOf(Ink ink) {
  switch (ink) {
    case Ink::plain:
      return "";
    case Ink::quiet:
      return "\x1b[2m";
    case Ink::good:
      return "\x1b[32m";
    case Ink::warning:
      return "\x1b[31m";
    case Ink::accent:
      return "\x1b[1;36m";
    case Ink::strong:
      return "\x1b[1m";
    case Ink::inverse:
      return "\x1b[7m";
  }
  std::unreachable();
}

std::string inked(std::string text, Ink ink, bool colours) {
  if (!colours || ink == Ink::plain || text.empty()) return text;
  return std::string(startOf(ink)) + text + "\x1b[0m";
}

std::string onOneLine(std::string_view text) {
  std::string clean = cleaned(text);
  std::ranges::replace(clean, '\n', ' ');
  return clean;
}

}  // namespace

Ink inkOf(view::Tone tone) {
  switch (tone) {
    case view::Tone::plain:
      return Ink::plain;
    case view::Tone::quiet:
      return Ink::quiet;
    case view::Tone::good:
      return Ink::good;
    case view::Tone::warning:
      return Ink::warning;
    case view::Tone::accent:
      return Ink::accent;
  }
  std::unreachable();
}

const Glyphs& glyphs(bool blocks) { return blocks ? blockGlyphs : asciiGlyphs; }

int columnsOf(const Runs& runs) {
  int columns = 0;
  for (const Run& run : runs) columns += columnsOf(run.text);
  return columns;
}

std::vector<Runs> rowsOf(const std::vector<Runs>& items, int gap, int width) {
  std::vector<Runs> rows;
  for (const Runs& item : items) {
    if (rows.empty() || columnsOf(rows.back()) + gap + columnsOf(item) > width) {
      rows.push_back(item);
    } else {
      rows.back().push_back({repeated(" ", gap)});
      rows.back().insert(rows.back().end(), item.begin(), item.end());
    }
  }
  return rows;
}

std::string repeated(std::string_view text, int count) {
  std::string all;
  for (int done = 0; done < count; ++done) all += text;
  return all;
}

std::string printed(const Line& line, bool colours) {
  std::string plain = line.margin;
  for (const Run& run : line.runs) plain += onOneLine(run.text);
  if (plain.find_first_not_of(' ') == std::string::npos) return "";

  std::string bytes;
  if (!line.flush) {
    const int gap = std::max(0, marginWidth - 1 - columnsOf(line.margin));
    bytes = repeated(" ", gap) + inked(line.margin, Ink::accent, colours) + " ";
  }
  for (const Run& run : line.runs) bytes += inked(onOneLine(run.text), run.ink, colours);
  if (!colours) bytes.erase(bytes.find_last_not_of(' ') + 1);
  return bytes;
}

}  // namespace tb::console
