#include "screens/audience/fan_chart_view_controller.h"

#include <algorithm>

#include "core/format.h"
#include "core/number_style.h"
#include "core/talent_scores.h"
#include "screens/audience/fanbase_view.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Tone toneOfChange(std::int64_t change) {
  if (change == 0) return Tone::plain;
  return change > 0 ? Tone::good : Tone::warning;
}

Tiles fanFigures(const Game& game) {
  const WorldState& world = game.world;
  Tiles tiles{{{.label = "Fans", .value = plainCount(game.locale, world.totalFans)}}};
  if (world.trackFans.size() > 1) {
    const std::int64_t change = world.trackFans.back() - world.trackFans[world.trackFans.size() - 2];
    tiles.tiles.push_back({.label = "Last change",
                           .value = (change > 0 ? "+" : "") + plainCount(game.locale, change),
                           .tone = toneOfChange(change)});
  }
  return tiles;
}

std::string talentWords(const WorldState& world) {
  const std::int64_t talent = std::min<std::int64_t>(overallTalent(world), 100);
  return tb::format("Talent wins fans: with {} of 100, a week goes your way in about {} of 100.", talent,
                    talent + (talent < 100 ? 1 : 0));
}

}  // namespace

Page FanChartViewController::view(const Game& game) {
  const WorldState& world = game.world;
  Page page{.title = "Fans", .subtitle = fansSentence(world.totalFans), .nodes = {fanFigures(game)}};
  if (!world.trackFans.empty()) page.nodes.push_back(fansChart(game));
  page.nodes.push_back(Section{
      .heading = "WHAT MOVES THEM",
      .nodes = {Text{.text = talentWords(world)},
                Text{.text = world.totalFans > 1'000
                                 ? "A bad week costs a few."
                                 : "Up to 1,000 fans are loyal: they stay whatever the week brings."},
                Text{.text = "Leads in good titles with large budgets bring the most, in the weeks of their "
                             "release."}}});
  return page;
}

}  // namespace tb
