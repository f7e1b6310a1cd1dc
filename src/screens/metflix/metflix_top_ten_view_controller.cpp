#include "screens/metflix/metflix_top_ten_view_controller.h"

#include <algorithm>

#include "core/format.h"
#include "film/metflix_chart.h"
#include "screens/metflix/chart_parts.h"
#include "screens/metflix/metflix_news_view_controller.h"
#include "screens/metflix/metflix_top_ten_detail_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Place placeOf(const WorldState& world, const TopTen& entry, ChartList list) {
  return {.place = std::to_string(entry.rankThisWeek),
          .move = moveOf(entry),
          .moved = movedWords(entry),
          .label = entry.title,
          .detail = weeksWords(entry),
          .picture = {posterOf(world, entry)},
          .tone = isInvented(entry) ? Tone::plain : Tone::accent,
          .press = [list, id = entry.filmId](Stage& stage) {
            stage.open<MetflixTopTenDetailViewController>(list, id);
          }};
}

Row formerRow(const WorldState& world, const TopTen& entry) {
  return {.label = entry.title,
          .value = tb::format("peak #{}", entry.peakPosition),
          .detail = tb::format("{} • {}", weeksWords(entry), entry.yearDebut),
          .picture = {posterOf(world, entry)}};
}

// The player's films that were on the chart, latest first.
Section former(const WorldState& world) {
  const List<TopTen>& left = world.saveAllSavedTopTenList;
  return {.heading = "YOUR FORMER ENTRIES",
          .nodes = {PagedList{.key = "former",
                              .size = left.size(),
                              .nodeAt = [&world, &left](std::size_t index) -> Node {
                                return formerRow(world, left[left.size() - 1 - index]);
                              },
                              .pageLength = 5}}};
}

}  // namespace

Choice MetflixTopTenViewController::choice() {
  const auto option = [this](const char* label, bool isSeries) {
    return Choice::Option{.label = label,
                          .chosen = shows_series_ == isSeries,
                          .press = [this, isSeries](Stage&) { shows_series_ = isSeries; }};
  };
  return {.label = "Show", .options = {option("Movies", false), option("Series", true)}};
}

Page MetflixTopTenViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const ChartList list =
      shows_series_ ? &WorldState::saveAllTopTenSeriesList : &WorldState::saveAllTopTenList;
  const List<TopTen>& entries = world.*list;
  Section chart{.heading = shows_series_ ? "TOP 10 SERIES" : "TOP 10 MOVIES"};
  for (std::size_t index = 0; index < std::min(entries.size(), chartPlaces); ++index) {
    chart.nodes.push_back(placeOf(world, entries[index], list));
  }
  Page page{.title = "Metflix Top 10",
            .subtitle = "What the world streams this week",
            .nodes = {choice(), std::move(chart),
                      caption("Films and series enter by their popularity, which is in your hands before the "
                              "release and in the audience's after it."),
                      leadingTo<MetflixNewsViewController>("New on Metflix", "What came out lately")}};
  if (!shows_series_ && !world.saveAllSavedTopTenList.empty()) page.nodes.push_back(former(world));
  return page;
}

}  // namespace tb
