#pragma once

// Parts shared by many screens.

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/stage.h"
#include "screens/view.h"

namespace tb {

// Opens another screen. As a function, not as a lambda: every type of lambda costs the compiler a type of
// std::function.
template <class Opened>
void open(Stage& stage) {
  stage.open<Opened>();
}
template <class Opened>
[[nodiscard]] Operation opens() {
  return &open<Opened>;
}

// A row that opens another screen.
template <class Opened>
[[nodiscard]] view::Row leadingTo(std::string label, std::string detail = "", std::string value = "") {
  return {.label = std::move(label),
          .value = std::move(value),
          .detail = std::move(detail),
          .press = opens<Opened>()};
}

[[nodiscard]] view::Text caption(std::string text);

// The energy left this week.
[[nodiscard]] view::Meter energyMeter(const WorldState& world);

// The figures at the top of every screen: cash and energy.
[[nodiscard]] std::vector<view::StatTile> headFigures(const Game& game);

// The brief reason of a refusal; empty when there is none.
[[nodiscard]] std::string briefOf(const Refusal& refusal);

// A price in energy, and one in cash: whole units of money.
[[nodiscard]] view::Price energyPrice(std::int64_t energy);
[[nodiscard]] view::Price moneyPrice(const Locale& locale, double price);

// The band of a score from 0 to 100.
[[nodiscard]] view::Band scoreBand(double score);

// A meter of a score from 0 to 100, tinted by its band. A score above 100 fills it.
[[nodiscard]] view::Meter scoreMeter(std::string label, std::int64_t score);
[[nodiscard]] view::StatTile scoreTile(std::string label, std::int64_t score, std::string detail = "");

// Formats a chart's values.
using ValueText = std::function<std::string(double)>;

// A line chart of a history, oldest first; `unit` is what an entry stands for, such as "week".
[[nodiscard]] view::Chart historyChart(std::string title, std::string_view unit,
                                       std::span<const double> values, const ValueText& textOf);

// A bar chart; negative values are drawn below 0.
[[nodiscard]] view::Chart barChart(std::string title, std::span<const double> values,
                                   const std::function<std::string(std::size_t)>& nameOf,
                                   const ValueText& textOf);

// The job's remaining weeks: "3 weeks left".
[[nodiscard]] std::string jobWeeksLeft(const WorldState& world);

// A chart's scale: a few round values from at most lowest to at least highest. The span is widened until no
// two labels are equal.
[[nodiscard]] std::vector<view::Chart::Tick> roundScale(double lowest, double highest,
                                                        const ValueText& textOf);

}  // namespace tb
