#pragma once

#include "screens/view.h"
#include "shells/console/canvas.h"

namespace tb::console {

// A chart as text: bars across the page with their figures, a pie as shares of the whole, a history as a
// small plot with its scale.
void drawChart(Canvas& canvas, const view::Chart& chart);

// A bar of `width` cells, the share (0 to 1, clamped) of them full.
[[nodiscard]] std::string bar(const Glyphs& glyphs, double share, int width);

// value / whole, held between 0 and 1; 0 where that is no number.
[[nodiscard]] double shareOf(double value, double whole);

}  // namespace tb::console
