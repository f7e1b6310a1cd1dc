#include "screens/parts.h"

#include <algorithm>
#include <cmath>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"

namespace tb {

using namespace view;

Text caption(std::string text) {
  return {.text = std::move(text), .style = Text::Style::caption, .tone = Tone::quiet};
}

Meter energyMeter(const WorldState& world) {
  return {.label = "Energy",
          .value = static_cast<double>(world.totalEnergyAvailable),
          .maximum = static_cast<double>(world.totalEnergyMax),
          .text = tb::format("{} of {}", world.totalEnergyAvailable, world.totalEnergyMax)};
}

std::vector<StatTile> headFigures(const Game& game) {
  const WorldState& world = game.world;
  return {{.label = "Cash",
           .value = cash(game.locale, world.totalCashAvailable),
           .tone = world.totalCashAvailable < 0 ? Tone::warning : Tone::plain},
          {.label = "Energy",
           .value = std::to_string(world.totalEnergyAvailable),
           .detail = tb::format("of {}", world.totalEnergyMax),
           .icon = Icon::energy}};
}

std::string briefOf(const Refusal& refusal) { return refusal ? refusal->brief : ""; }

Price energyPrice(std::int64_t energy) { return {.amount = std::to_string(energy), .icon = Icon::energy}; }

Price moneyPrice(const Locale& locale, double price) { return {.amount = wholeMoney(locale, price)}; }

Band scoreBand(double score) {
  constexpr double fairFrom = 25;
  constexpr double goodFrom = 50;
  constexpr double greatFrom = 80;
  if (score < fairFrom) return Band::poor;
  if (score < goodFrom) return Band::fair;
  return score < greatFrom ? Band::good : Band::great;
}

Meter scoreMeter(std::string label, std::int64_t score) {
  return {.label = std::move(label),
          .value = static_cast<double>(score),
          .maximum = 100,
          .text = std::to_string(score),
          .band = scoreBand(static_cast<double>(score))};
}

StatTile scoreTile(std::string label, std::int64_t score, std::string detail) {
  return {.label = std::move(label),
          .value = std::to_string(score),
          .detail = std::move(detail),
          .band = scoreBand(static_cast<double>(score))};
}

namespace {

// Returns two to six values.
std::vector<double> roundValues(double lowest, double highest) {
  constexpr double stepsWanted = 4;
  const double span = std::max({highest - lowest, std::abs(highest) * 1e-3, 1e-6});
  const double magnitude = std::pow(10, std::floor(std::log10(span / stepsWanted)));
  double step = magnitude;
  for (const double factor : {1.0, 2.0, 5.0, 10.0}) {
    step = factor * magnitude;
    if (span / step <= stepsWanted) break;
  }
  std::vector<double> scale;
  const double first = std::floor(lowest / step);
  const double last = std::ceil(highest / step);
  for (double mark = first; mark <= last; mark += 1) scale.push_back(mark * step);
  if (scale.size() < 2) scale.push_back((first + 1) * step);
  return scale;
}

std::string placeInHistory(std::string_view unit, std::size_t before) {
  if (before == 0) return "latest";
  return counted(static_cast<std::int64_t>(before), unit) + " before";
}

}  // namespace

std::vector<Chart::Tick> roundScale(double lowest, double highest, const ValueText& textOf) {
  constexpr int maxTries = 60;  // doublings; enough for any amount or count
  const auto readsTheSame = [](const Chart::Tick& a, const Chart::Tick& b) { return a.text == b.text; };
  std::vector<Chart::Tick> scale;
  for (int tried = 0; tried < maxTries; ++tried) {
    scale.clear();
    for (const double mark : roundValues(lowest, highest)) scale.push_back({mark, textOf(mark)});
    if (std::ranges::adjacent_find(scale, readsTheSame) == scale.end()) break;
    highest = lowest + 2 * std::max({highest - lowest, std::abs(lowest) * 1e-3, 0.5});
  }
  return scale;
}

std::string jobWeeksLeft(const WorldState& world) {
  const std::int64_t weeks = world.weeklyJobContractRemaining;
  if (weeks < 1) return "The contract has run out";
  return counted(weeks, "week") + " left";
}

Chart historyChart(std::string title, std::string_view unit, std::span<const double> values,
                   const ValueText& textOf) {
  Chart chart{.kind = Chart::Kind::line, .title = std::move(title)};
  if (values.empty()) {
    chart.summary = "There is no history yet.";
    return chart;
  }
  for (std::size_t index = 0; index < values.size(); ++index) {
    chart.points.push_back({.label = placeInHistory(unit, values.size() - 1 - index),
                            .value = values[index],
                            .text = textOf(values[index])});
  }
  const auto [lowest, highest] = std::ranges::minmax(values);
  chart.scale = roundScale(lowest, highest, textOf);
  chart.summary = tb::format("{}, from {} to {}; lowest {}, highest {}.", counted(std::ssize(values), unit),
                             textOf(values.front()), textOf(values.back()), textOf(lowest), textOf(highest));
  return chart;
}

Chart barChart(std::string title, std::span<const double> values,
               const std::function<std::string(std::size_t)>& nameOf, const ValueText& textOf) {
  Chart chart{.kind = Chart::Kind::bar, .title = std::move(title)};
  if (values.empty()) {
    chart.summary = "Nothing to chart yet.";
    return chart;
  }
  for (std::size_t index = 0; index < values.size(); ++index) {
    chart.points.push_back({.label = nameOf(index), .value = values[index], .text = textOf(values[index])});
  }
  const auto [lowest, highest] = std::ranges::minmax(values);
  chart.scale = roundScale(std::min(lowest, 0.0), highest, textOf);
  chart.summary = tb::format("First {}, last {}; highest {}.", textOf(values.front()), textOf(values.back()),
                             textOf(highest));
  return chart;
}

}  // namespace tb
