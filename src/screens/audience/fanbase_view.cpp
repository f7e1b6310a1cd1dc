#include "screens/audience/fanbase_view.h"

#include <array>
#include <limits>

#include "banks/fame_banks.h"
#include "core/bands.h"
#include "core/number_style.h"
#include "screens/audience/fan_chart_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

struct CrowdBand {
  std::int64_t upTo;  // fans
  std::size_t row;
};
constexpr std::array<CrowdBand, 7> crowdBands = {{
    {.upTo = 1'000, .row = 0},
    {.upTo = 10'000, .row = 1},
    {.upTo = 100'000, .row = 2},
    {.upTo = 1'000'000, .row = 3},
    {.upTo = 10'000'000, .row = 4},
    {.upTo = 1'000'000'000, .row = 5},
    {.upTo = std::numeric_limits<std::int64_t>::max(), .row = 6},
}};

}  // namespace

const std::string& fansSentence(std::int64_t fans) {
  return rowsOf(bank::fansSentences)[bandOf(crowdBands, fans)->row];
}

// Entries are changes, not weeks: a week can have none or several.
Chart fansChart(const Game& game) {
  const IntList& track = game.world.trackFans;
  const std::vector<double> fans(track.begin(), track.end());
  return historyChart("Fans", "change", fans, [&game](double count) {
    const auto whole = static_cast<std::int64_t>(count);
    return whole < 0 ? plainCount(game.locale, whole) : shortCount(whole);
  });
}

Card fanbaseView(const Game& game) {
  const WorldState& world = game.world;
  Card card{.title = plainCount(game.locale, world.totalFans) + (world.totalFans == 1 ? " fan" : " fans"),
            .subtitle = fansSentence(world.totalFans),
            .press = opens<FanChartViewController>()};
  if (world.trackFans.size() > 1) card.nodes.push_back(fansChart(game));
  return card;
}

}  // namespace tb
