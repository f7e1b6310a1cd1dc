#include "screens/film/imbd_box_office_detail_view_controller.h"

#include "core/descending.h"
#include "core/find.h"
#include "core/number_style.h"
#include "film/box_office_tables.h"
#include "film/film_record.h"
#include "screens/film/box_office_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

// Indexes of the film's records, by descending gross.
std::vector<std::size_t> marketsOf(const WorldState& world, std::int64_t filmId) {
  std::vector<std::size_t> found;
  forEachWith(world.saveAllBoxOfficeList, &BoxOffice::filmId, filmId,
              [&](std::size_t index) { found.push_back(index); });
  sortDescending(found, [&world](std::size_t index) { return world.saveAllBoxOfficeList[index].totalGross; });
  return found;
}

Row marketRow(const Locale& locale, const BoxOffice& market) {
  return {.label = market.countryName,
          .value = bigMoney(locale, market.totalGross),
          .detail = "Opening weekend " + bigMoney(locale, market.openingWeekend)};
}

}  // namespace

Page ImbdBoxOfficeDetailViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Film& film = world.saveAllFilmList[*find(world.saveAllFilmList, &Film::filmId, film_id_)];
  const std::vector<double> takings = weeklyTakings(world, film_id_);
  Page page{.title = film.title, .subtitle = "Box office"};
  if (takings.empty()) {
    page.nodes = {caption("No ticket has been sold yet.")};
    return page;
  }
  double gross = 0;
  for (const double week : takings) gross += week;
  page.nodes = {Tiles{{{.label = "Worldwide",
                        .value = bigMoney(game.locale, gross),
                        .detail = returnText(gross, film.budget)},
                       {.label = "Opening weekend", .value = bigMoney(game.locale, takings.front())},
                       {.label = "Budget", .value = bigMoney(game.locale, film.budget)}}},
                takingsChart(game, "EIGHT WEEKS", takings),
                caption("Eight-week box office performance is based on ticket sales.")};
  const std::vector<std::size_t> rows = marketsOf(world, film_id_);
  page.nodes.push_back(Section{
      .heading = "MARKETS",
      .nodes = {PagedList{.key = "markets", .size = rows.size(), .nodeAt = [&game, rows](std::size_t index) {
                            return marketRow(game.locale, game.world.saveAllBoxOfficeList[rows[index]]);
                          }}}});
  return page;
}

void openBoxOfficeDetail(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  const auto index = find(world.saveAllFilmList, &Film::filmId, filmId);
  if (!index) return;
  if (world.saveAllFilmList[*index].typeOfFilm != filmType::feature) {
    return stage.show(Notice{.title = "🎞 No Theatrical Release 🎞",
                             .message =
                                 "\nThis film was not released in theatres and does not have any box office "
                                 "data."});
  }
  stage.open<ImbdBoxOfficeDetailViewController>(filmId);
}

}  // namespace tb
