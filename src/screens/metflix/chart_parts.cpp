#include "screens/metflix/chart_parts.h"

#include <algorithm>

#include "core/format.h"
#include "film/catalogue.h"
#include "film/metflix_chart.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

Picture posterOf(const WorldState& world, const TopTen& entry) {
  if (!isInvented(entry)) return posterOfFilm(world, entry.filmId, entry.imageString);
  const auto titles = rateMovieCatalogue();
  const auto found = std::ranges::find(titles, entry.title, &CatalogueTitle::title);
  if (found != titles.end()) return posterOf(*found);
  return {.kind = PictureKind::poster, .name = entry.imageString, .title = entry.title};
}

Place::Move moveOf(const TopTen& entry) {
  if (entry.rankLastWeek == 0) return Place::Move::entered;
  if (entry.rankLastWeek == entry.rankThisWeek) return Place::Move::level;
  return entry.rankThisWeek < entry.rankLastWeek ? Place::Move::up : Place::Move::down;
}

std::string movedWords(const TopTen& entry) {
  const std::int64_t up = entry.rankLastWeek - entry.rankThisWeek;
  switch (moveOf(entry)) {
    case Place::Move::up:
      return tb::format("up {}", up);
    case Place::Move::down:
      return tb::format("down {}", -up);
    case Place::Move::entered:
      return "new";
    default:
      return "same";
  }
}

std::string weeksWords(const TopTen& entry) {
  return tb::format("{}{}", entry.weeksOnChart,
                    entry.weeksOnChart == 1 ? " week in the Top 10" : " weeks in the Top 10");
}

}  // namespace tb
