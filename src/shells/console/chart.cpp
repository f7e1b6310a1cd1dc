#include "shells/console/chart.h"

#include <algorithm>
#include <cmath>
#include <format>
#include <optional>
#include <span>

#include "shells/console/text.h"

namespace tb::console {

namespace {

using view::Chart;

constexpr int plotRows = 8;
constexpr int maxPointWidth = 6;     // maximum columns per point
constexpr std::size_t maxBars = 16;  // larger charts are drawn as a plot
constexpr int maxBarWidth = 40;

double orZero(double value) { return std::isfinite(value) ? value : 0; }

// --- Bars and shares ---

struct Bar {
  std::string label;
  double share;  // relative to the longest bar, 0 to 1
  std::string text;
};

void drawBars(Canvas& canvas, const std::vector<Bar>& bars) {
  int labelWidth = 0;
  int textWidth = 0;
  for (const Bar& drawn : bars) {
    labelWidth = std::max(labelWidth, columnsOf(drawn.label));
    textWidth = std::max(textWidth, columnsOf(drawn.text));
  }
  labelWidth = std::min(labelWidth, canvas.width() / 3);
  const int width = std::clamp(canvas.width() - labelWidth - textWidth - 3, 4, maxBarWidth);
  for (const Bar& drawn : bars) {
    const std::string label = fitted(drawn.label, std::max(4, labelWidth));
    const std::string full =
        repeated(canvas.glyphs().full, static_cast<int>(std::lround(drawn.share * width)));
    canvas.line({{label + repeated(" ", labelWidth - columnsOf(label) + 1)},
                 {full, Ink::accent},
                 {repeated(" ", width - columnsOf(full) + 1) + drawn.text}});
  }
}

// A negative value also gets a bar; its figure shows the sign.
void drawFigures(Canvas& canvas, const Chart& chart) {
  double longest = 0;
  for (const Chart::Point& point : chart.points) longest = std::max(longest, std::abs(orZero(point.value)));
  std::vector<Bar> bars;
  for (const Chart::Point& point : chart.points) {
    bars.push_back({point.label, shareOf(std::abs(point.value), longest), point.text});
  }
  drawBars(canvas, bars);
}

void drawShares(Canvas& canvas, const Chart& chart) {
  double whole = 0;
  for (const Chart::Point& point : chart.points) whole += std::max(0.0, orZero(point.value));
  std::vector<Bar> bars;
  for (const Chart::Point& point : chart.points) {
    const double share = shareOf(point.value, whole);
    bars.push_back({point.label, share, std::format("{:3.0f}%  {}", share * 100, point.text)});
  }
  drawBars(canvas, bars);
}

// --- The plot ---

class Plot {
 public:
  Plot(Canvas& canvas, const Chart& chart) : canvas_(canvas), chart_(chart) {
    for (const Chart::Tick& tick : chart.scale) label_width_ = std::max(label_width_, columnsOf(tick.text));
    const int room = std::max(1, canvas.width() - label_width_ - 2);
    const auto points = static_cast<int>(std::min(chart.points.size(), static_cast<std::size_t>(room)));
    point_width_ = std::clamp(room / points, 1, maxPointWidth);
    gather(static_cast<std::size_t>(points));
    span();
  }

  void draw() {
    for (int row = plotRows - 1; row >= 0; --row) drawRow(row);
    const int width = static_cast<int>(values_.size()) * point_width_;
    canvas_.line(
        {{repeated(" ", label_width_ + 1)},
         {std::string(canvas_.glyphs().origin) + repeated(canvas_.glyphs().ground, width), Ink::quiet}});
    drawPlaces(width);
  }

 private:
  // One value per column: the mean of the points in it.
  void gather(std::size_t places) {
    for (std::size_t place = 0; place < places; ++place) {
      const std::size_t first = place * chart_.points.size() / places;
      const std::size_t end = (place + 1) * chart_.points.size() / places;
      double mean = 0;
      for (std::size_t at = first; at < end; ++at) {
        mean += orZero(chart_.points[at].value) / static_cast<double>(end - first);
      }
      values_.push_back(mean);
    }
  }

  void span() {
    lowest_ = std::ranges::min(values_);
    highest_ = std::ranges::max(values_);
    for (const Chart::Tick& tick : chart_.scale) {
      lowest_ = std::min(lowest_, orZero(tick.value));
      highest_ = std::max(highest_, orZero(tick.value));
    }
    base_row_ = static_cast<int>(std::lround(heightOf(std::clamp(0.0, lowest_, highest_))));
  }

  // In rows, from the bottom of the plot.
  [[nodiscard]] double heightOf(double value) const {
    return shareOf(value - lowest_, highest_ - lowest_) * plotRows;
  }

  // How much of the cell is filled, in eighths. A value of zero still gets one.
  [[nodiscard]] int filled(double value, int row) const {
    const double height = heightOf(value);
    if (row < base_row_) return height < row + 0.5 ? 8 : 0;
    const auto eighths = static_cast<int>(std::lround((height - row) * 8));
    return std::clamp(eighths, row == base_row_ && height > base_row_ - 0.5 ? 1 : 0, 8);
  }

  [[nodiscard]] std::string tickAt(int row) const {
    for (const Chart::Tick& tick : chart_.scale) {
      const double height = heightOf(orZero(tick.value)) * (plotRows - 1) / plotRows;
      if (std::lround(height) == row) return tick.text;
    }
    return "";
  }

  void drawRow(int row) {
    const std::string tick = tickAt(row);
    std::string cells;
    for (const double value : values_) {
      cells += repeated(canvas_.glyphs().eighths[filled(value, row)], point_width_);
    }
    canvas_.line({{repeated(" ", label_width_ - columnsOf(tick)) + tick + " "},
                  {std::string(canvas_.glyphs().axis), Ink::quiet},
                  {cells, Ink::accent}});
  }

  // The labels below the plot: all if they fit, else the first and the last.
  void drawPlaces(int width) {
    std::string names = repeated(" ", label_width_ + 2);
    const bool all = chart_.points.size() == values_.size() &&
                     std::ranges::all_of(chart_.points, [this](const Chart::Point& point) {
                       return columnsOf(point.label) < point_width_;
                     });
    if (all) {
      for (const Chart::Point& point : chart_.points) {
        names += point.label + repeated(" ", point_width_ - columnsOf(point.label));
      }
    } else {
      const std::string& last = chart_.points.back().label;
      names += chart_.points.front().label;
      if (values_.size() > 1) {
        names +=
            repeated(" ", std::max(2, width - columnsOf(chart_.points.front().label) - columnsOf(last))) +
            last;
      }
    }
    if (names.find_first_not_of(' ') != std::string::npos) canvas_.line({{names, Ink::quiet}});
  }

  Canvas& canvas_;
  const Chart& chart_;
  int label_width_ = 0;
  int point_width_ = 1;
  std::vector<double> values_;
  double lowest_ = 0;
  double highest_ = 0;
  int base_row_ = 0;  // the row of zero, or the nearest edge
};

}  // namespace

double shareOf(double value, double whole) {
  const double share = value / whole;
  return std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0;
}

std::string bar(const Glyphs& glyphs, double share, int width) {
  const auto full = static_cast<int>(std::lround(share * width));
  return repeated(glyphs.full, full) + repeated(glyphs.rest, width - full);
}

void drawChart(Canvas& canvas, const Chart& chart) {
  if (!chart.title.empty()) canvas.text(chart.title, Ink::strong);
  if (!chart.points.empty()) {
    switch (chart.kind) {
      case Chart::Kind::pie:
        drawShares(canvas, chart);
        break;
      case Chart::Kind::line:
        Plot(canvas, chart).draw();
        break;
      case Chart::Kind::bar:
      case Chart::Kind::histogram:
        if (chart.points.size() > maxBars) {
          Plot(canvas, chart).draw();
        } else {
          drawFigures(canvas, chart);
        }
        break;
    }
  }
  if (!chart.summary.empty()) canvas.text(chart.summary, Ink::quiet);
}

}  // namespace tb::console
