#include "screens/metflix/metflix_top_ten_detail_view_controller.h"

#include <cmath>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "film/metflix_chart.h"
#include "screens/metflix/chart_parts.h"
#include "screens/parts.h"
#include "screens/reception/imbd_film_detail_view_controller.h"

namespace tb {

using namespace view;

namespace {

// Nothing when the popularity was 0 or less, as the change has no percentage then.
std::vector<Node> changeText(const TopTen& entry) {
  if (entry.lastWeekPopularity <= 0) return {};
  const double change = (entry.currentPopularity / entry.lastWeekPopularity - 1) * 100;
  if (change < 0) {
    return {Text{.text = tb::format("Views have decreased by {:.2f}%", -change), .tone = Tone::warning}};
  }
  return {Text{.text = tb::format("Views have increased by +{:.2f}%", change), .tone = Tone::good}};
}

std::string weeksAtOne(const TopTen& entry) {
  return tb::format("{}{}", entry.weeksAtOne, entry.weeksAtOne == 1 ? " week at #1" : " weeks at #1");
}

Tiles places(const TopTen& entry) {
  return {
      {{.label = "This week", .value = tb::format("#{}", entry.rankThisWeek), .detail = movedWords(entry)},
       {.label = "Last week", .value = entry.rankLastWeek == 0 ? "–" : tb::format("#{}", entry.rankLastWeek)},
       {.label = "Peak", .value = tb::format("#{}", entry.peakPosition), .detail = weeksAtOne(entry)}}};
}

Section about(const TopTen& entry) {
  Section section{.heading = "THE TITLE", .nodes = {Text{.text = entry.description}}};
  if (!entry.director.empty()) {
    section.nodes.push_back(Row{.label = "Directed by", .value = entry.director});
  }
  if (entry.duration > 0) {
    section.nodes.push_back(Row{.label = "Length", .value = tb::format("{} minutes", entry.duration)});
  }
  section.nodes.push_back(
      Row{.label = "Entered", .value = tb::format("week {} of {}", entry.weekNumber, entry.yearDebut)});
  if (!isInvented(entry)) {
    section.nodes.push_back(Row{.label = "Scores and reviews",
                                .press = [id = entry.filmId](Stage& stage) { openTitlePage(stage, id); }});
  }
  return section;
}

}  // namespace

Page MetflixTopTenDetailViewController::view(const Game& game) {
  const List<TopTen>& entries = game.world.*list_;
  const auto index = find(entries, &TopTen::filmId, film_id_);
  if (!index) return {.title = "Metflix Top 10", .nodes = {caption("This title has left the chart.")}};
  const TopTen& entry = entries[*index];
  Picture poster = posterOf(game.world, entry);
  poster.description = entry.title;
  Page page{.title = entry.title,
            .subtitle = weeksWords(entry),
            .nodes = {poster, places(entry),
                      Text{.text = plainCount(game.locale, weeklyViews(entry)) + " views this week",
                           .style = Text::Style::large}}};
  page.nodes.append_range(changeText(entry));
  if (isInvented(entry)) {
    page.nodes.push_back(caption(plainCount(game.locale, entry.totalViews) + " views in all"));
  }
  page.nodes.push_back(about(entry));
  return page;
}

}  // namespace tb
