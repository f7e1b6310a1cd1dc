#pragma once

// What many screens are built from, so that each thing is shown in one way.

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/stage.h"
#include "screens/view.h"

namespace tb {

// A row that leads to another screen.
template <class Opened>
[[nodiscard]] view::Row leadingTo(std::string label, std::string detail = "", std::string value = "") {
  return {.label = std::move(label),
          .value = std::move(value),
          .detail = std::move(detail),
          .press = [](Stage& stage) { stage.open(std::make_unique<Opened>()); }};
}

[[nodiscard]] view::Text caption(std::string text);

// Short money. A run can lose money, a balance can be negative and a fortune pass a trillion; such an amount
// is written in full, since the short form has no words for it.
[[nodiscard]] std::string shownMoney(const Locale& locale, double amount);

// The energy that is left of the week.
[[nodiscard]] view::Meter energyMeter(const WorldState& world);

// The two figures that every screen has in view: cash, and the energy left of the week.
[[nodiscard]] std::vector<view::StatTile> headFigures(const Game& game);

// Why the button would refuse, in a few words; empty when it would not.
[[nodiscard]] std::string briefOf(const Refusal& refusal);

// A price in energy, and one in cash: whole units of money.
[[nodiscard]] view::Price energyPrice(std::int64_t energy);
[[nodiscard]] view::Price moneyPrice(const Locale& locale, double price);

// The band of a score from 0 to 100.
[[nodiscard]] view::Band scoreBand(double score);

// A 0 to 100 score, tinted by its band. A score above 100 fills the meter.
[[nodiscard]] view::Meter scoreMeter(std::string label, std::int64_t score);
[[nodiscard]] view::StatTile scoreTile(std::string label, std::int64_t score, std::string detail = "");

// How a chart writes its values.
using ValueText = std::function<std::string(double)>;

// A line chart of what the game kept of a figure, oldest first; `unit` is what each entry stands for, such as
// "week".
[[nodiscard]] view::Chart historyChart(std::string title, std::string_view unit,
                                       std::span<const double> values, const ValueText& textOf);

// Bars in their order, upwards and downwards from 0.
[[nodiscard]] view::Chart barChart(std::string title, std::span<const double> values,
                                   const std::function<std::string(std::size_t)>& nameOf,
                                   const ValueText& textOf);

// How long the job goes on: "3 weeks left".
[[nodiscard]] std::string jobWeeksLeft(const WorldState& world);

// The scale of a chart: a few round values that span lowest to highest. Where the values lie so close that
// two marks would read the same, it spans more.
[[nodiscard]] std::vector<view::Chart::Tick> roundScale(double lowest, double highest,
                                                        const ValueText& textOf);

}  // namespace tb
