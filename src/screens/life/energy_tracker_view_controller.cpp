#include "screens/life/energy_tracker_view_controller.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "banks/lifestyle_banks.h"
#include "core/format.h"
#include "life/energy.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

constexpr std::int64_t lastAge = 60;  // of the forecast

struct Part {
  const char* label;
  std::int64_t points;
};

std::string withSign(std::int64_t points) { return points == 0 ? "0" : tb::format("{:+}", points); }

Tone toneOf(std::int64_t points) {
  if (points == 0) return Tone::quiet;
  return points < 0 ? Tone::warning : Tone::good;
}

// The rows of the parts, with their explanations from the row of the bank with this index on.
std::vector<Node> partRows(std::span<const Part> parts, std::size_t explanation) {
  std::vector<Node> rows;
  for (const auto& [label, points] : parts) {
    rows.push_back(Row{.label = label,
                       .value = withSign(points),
                       .detail = rowsOf(bank::energySources)[explanation++],
                       .tone = toneOf(points)});
  }
  return rows;
}

std::array<Part, 8> sourceParts(const EnergySources& sources) {
  return {{{"Base", sources.base},
           {"Age", sources.age},
           {"Drama", sources.drama},
           {"Health checkups", sources.checkups},
           {"Subscriptions", sources.subscriptions},
           {"Properties", sources.properties},
           {"Vehicles", sources.vehicles},
           {"Relationships", sources.relationships}}};
}

std::array<Part, 5> drainParts(const EnergyDrains& drains) {
  return {{{"Your job", -drains.job},
           {"Acting classes", -drains.classes},
           {"Your children", -drains.children},
           {"Too many roles at once", -drains.roles},
           {"Your streaming company", -drains.platform}}};
}

// A pie of a week's energy: what is taken, and what is left to spend.
Chart weekChart(const WorldState& world, const EnergyDrains& drains) {
  Chart chart{.kind = Chart::Kind::pie, .title = "A week's energy"};
  const auto add = [&](const char* label, std::int64_t points) {
    if (points <= 0) return;
    chart.points.push_back(
        {.label = label, .value = static_cast<double>(points), .text = std::to_string(points)});
  };
  const std::int64_t left = std::max<std::int64_t>(world.totalEnergyMax - drains.sum(), 0);
  add("Yours to spend", left);
  for (const auto& [label, points] : drainParts(drains)) add(label, -points);
  chart.summary = tb::format("Of a maximum of {}, {} goes every week and {} is left to spend.",
                             world.totalEnergyMax, drains.sum(), left);
  return chart;
}

Section taken(const WorldState& world, const EnergyDrains& drains) {
  constexpr std::size_t firstDrain = 8;  // in bank::energySources
  Section section{.heading = "WEEKLY ENERGY COSTS", .nodes = partRows(drainParts(drains), firstDrain)};
  section.nodes.push_back(
      Row{.label = "In all", .value = withSign(-drains.sum()), .tone = toneOf(-drains.sum())});
  if (drains.sum() > world.totalEnergyMax) {
    section.nodes.push_back(
        Text{.text = "More than you have: a week starts with nothing to spend.", .tone = Tone::warning});
  }
  return section;
}

Section given(const WorldState& world) {
  const EnergySources sources = energySources(world);
  Section section{.heading = "WHERE IT COMES FROM", .nodes = partRows(sourceParts(sources), 0)};
  if (sources.other != 0) {
    section.nodes.push_back(Row{.label = "Everything else",
                                .value = withSign(sources.other),
                                .detail = "A thank-you, losses that age spared you, and what nobody "
                                          "keeps a record of.",
                                .tone = toneOf(sources.other)});
  }
  section.nodes.push_back(Row{.label = "Weekly maximum", .value = std::to_string(world.totalEnergyMax)});
  return section;
}

Chart forecast(const WorldState& world, const std::vector<std::int64_t>& maxima) {
  Chart chart{.kind = Chart::Kind::line, .title = "Your maximum at each birthday to 60"};
  std::int64_t age = world.ageCount;
  const auto add = [&](std::int64_t maximum) {
    chart.points.push_back({.label = tb::format("At {}", age),
                            .value = static_cast<double>(maximum),
                            .text = std::to_string(maximum)});
    age += 1;
  };
  add(world.totalEnergyMax);
  for (const std::int64_t maximum : maxima) add(maximum);
  const auto [least, most] = std::ranges::minmax(chart.points, {}, &Chart::Point::value);
  chart.scale = roundScale(least.value, most.value, [](double mark) { return tb::format("{:.0f}", mark); });
  chart.summary = tb::format("{} now, at {}; {} at {}, if nothing but age changes it.", world.totalEnergyMax,
                             world.ageCount, maxima.back(), lastAge);
  return chart;
}

}  // namespace

Row trackerRow(const WorldState& world) {
  return leadingTo<EnergyTrackerViewController>("Energy tracker", "Where it comes from, and where it goes",
                                                tb::format("{} a week", world.totalEnergyMax));
}

Page EnergyTrackerViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const EnergyDrains drains = energyDrains(world, world.weekNumberForTracking);
  Page page{.title = "Energy Tracker", .subtitle = "Where every point of the week comes from and goes"};
  page.nodes.push_back(energyMeter(world));
  if (world.totalEnergyAvailable > world.totalEnergyMax) {
    page.nodes.push_back(caption(tb::format(
        "You hold {} more than your maximum. You keep what is over, less what each week takes, but "
        "it is not refilled.",
        world.totalEnergyAvailable - world.totalEnergyMax)));
  }
  page.nodes.append_range(std::vector<Node>{weekChart(world, drains), taken(world, drains), given(world)});
  const std::vector<std::int64_t> maxima = maximumAtBirthdays(world, lastAge);
  if (maxima.empty()) return page;
  page.nodes.append_range(std::vector<Node>{
      forecast(world, maxima), caption("As it is today: what you buy and what happens to you moves it.")});
  return page;
}

}  // namespace tb
