#pragma once

#include "screens/view.h"
#include "shells/console/canvas.h"

namespace tb::console {

// Draws a chart as text: horizontal bars with figures, a pie as percentages, a history as a small plot with a
// scale.
void drawChart(Canvas& canvas, const view::Chart& chart);

// A bar of `width` cells, of which the share (clamped to 0 to 1) is filled.
[[nodiscard]] std::string bar(const Glyphs& glyphs, double share, int width);

// value / whole, clamped to 0 to 1; 0 when that is not a number.
[[nodiscard]] double shareOf(double value, double whole);

}  // namespace tb::console
