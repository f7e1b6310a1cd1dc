#include "screens/metflix/metflix_news_view_controller.h"

#include "film/catalogue.h"
#include "film/film_record.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"

namespace tb {

using namespace view;

namespace {

constexpr std::size_t titlesPerWeek = 8;
constexpr std::int64_t newForWeeks = 4;

bool isFilmOrSeries(std::int64_t type) { return type == filmType::feature || type == filmType::series; }

void addOwn(const WorldState& world, std::vector<Node>& nodes) {
  for (const Film& film : world.saveAllFilmList) {
    const bool isNew = world.weekNumberForTracking - film.weekReleased <= newForWeeks;
    if (!isFilmOrSeries(film.typeOfFilm) || !isOut(world, film) || !isNew) continue;
    nodes.push_back(Headline{.stamp = "YOURS",
                             .text = film.title,
                             .detail = film.movieDescription,
                             .picture = {posterOf(world, film)},
                             .tone = Tone::accent,
                             .press = [id = film.filmId](Stage& stage) { openTitlePage(stage, id); }});
  }
}

// The catalogue goes around, a few titles each week.
void addOthers(const WorldState& world, std::vector<Node>& nodes) {
  std::vector<const Movie*> titles;
  for (const Movie& movie : movies()) {
    if (isFilmOrSeries(movie.type)) titles.push_back(&movie);
  }
  const std::size_t first = static_cast<std::size_t>(world.weekNumberForTracking) * titlesPerWeek;
  for (std::size_t at = first; at < first + titlesPerWeek; ++at) {
    const Movie& movie = *titles[at % titles.size()];
    nodes.push_back(Headline{.stamp = movie.type == filmType::series ? "SERIES" : "FILM",
                             .text = movie.title,
                             .detail = movie.shortSummary,
                             .picture = {posterOf(movie)}});
  }
}

}  // namespace

Page MetflixNewsViewController::view(const Game& game) {
  Section news{.heading = "NEW ON METFLIX"};
  addOwn(game.world, news.nodes);
  addOthers(game.world, news.nodes);
  return {.title = "Metflix", .subtitle = "This week", .nodes = {std::move(news)}};
}

}  // namespace tb
