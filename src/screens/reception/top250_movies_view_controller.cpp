#include "screens/reception/top250_movies_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/film/box_office_parts.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"

namespace tb {

using namespace view;

namespace {

// The player's titles are highlighted and open their pages.
template <class Title>
Row rowOf(const WorldState& world, std::size_t place, const Title& title) {
  Row row{.label = tb::format("{}. {}", place, title.title)};
  if (title.filmId < 0) return row;
  row.tone = Tone::accent;
  row.picture = {posterOfFilm(world, title.filmId, title.imageString)};
  row.press = [id = title.filmId](Stage& stage) { openTitlePage(stage, id); };
  return row;
}

Row movieRow(const Game& game, std::size_t place, const BoxOfficeWeekends& movie) {
  Row row = rowOf(game.world, place, movie);
  row.value = bigMoney(game.locale, movie.totalGross);
  row.detail = std::to_string(movie.yearReleased);
  return row;
}

Row showRow(const WorldState& world, std::size_t place, const TopShow& show) {
  Row row = rowOf(world, place, show);
  row.value = tb::format("{:.1f}", show.imdbRating);
  if (show.seasonNumber >= 1) row.detail = tb::format("Season {}", show.seasonNumber);
  return row;
}

}  // namespace

void Top250MoviesViewController::load(Stage& stage) { lists_ = topTitles(stage.game().world); }

Choice Top250MoviesViewController::choice() {
  const auto option = [this](const char* label, TopList list) {
    return Choice::Option{
        .label = label, .chosen = shown_ == list, .press = [this, list](Stage&) { shown_ = list; }};
  };
  return {.label = "Show", .options = {option("Movies", TopList::movies), option("Shows", TopList::shows)}};
}

Page Top250MoviesViewController::view(const Game& game) {
  const bool isMovies = shown_ == TopList::movies;
  const auto nodeAt = [this, &game, isMovies](std::size_t index) -> Node {
    return isMovies ? movieRow(game, index + 1, lists_.movies[index])
                    : showRow(game.world, index + 1, lists_.shows[index]);
  };
  return {.title = isMovies ? "TOP 250 Movies" : "TOP 250 Shows",
          .subtitle = isMovies ? "All Time Box Office Gross" : "All Time Highest Rated Series",
          .nodes = {choice(),
                    Section{.heading = isMovies ? "WORLDWIDE" : "RATING",
                            .nodes = {PagedList{.key = isMovies ? "movies" : "shows",
                                                .size = isMovies ? lists_.movies.size() : lists_.shows.size(),
                                                .nodeAt = nodeAt}}}}};
}

}  // namespace tb
