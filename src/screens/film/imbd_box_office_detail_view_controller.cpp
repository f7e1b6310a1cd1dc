#include "screens/film/imbd_box_office_detail_view_controller.h"

#include "core/descending.h"
#include "film/box_office_tables.h"
#include "film/film_record.h"
#include "screens/film/box_office_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

// Where in the list the records of the film stand, the market that brought most first.
std::vector<std::size_t> marketsOf(const WorldState& world, std::int64_t filmId) {
  std::vector<std::size_t> found;
  for (std::size_t index = 0; index < world.saveAllBoxOfficeList.size(); ++index) {
    if (world.saveAllBoxOfficeList[index].filmId == filmId) found.push_back(index);
  }
  sortDescending(found, [&world](std::size_t index) { return world.saveAllBoxOfficeList[index].totalGross; });
  return found;
}

Row marketRow(const Locale& locale, const BoxOffice& market) {
  return {.label = market.countryName,
          .value = shownMoney(locale, market.totalGross),
          .detail = "Opening weekend " + shownMoney(locale, market.openingWeekend)};
}

}  // namespace

Page ImbdBoxOfficeDetailViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Film& film = world.saveAllFilmList[filmIndex(world, film_id_)];
  const std::vector<double> takings = weeklyTakings(world, film_id_);
  Page page{.title = film.title, .subtitle = "Box office"};
  if (takings.empty()) {
    page.nodes = {caption("No ticket has been sold yet.")};
    return page;
  }
  double gross = 0;
  for (const double week : takings) gross += week;
  page.nodes = {Tiles{{{.label = "Worldwide",
                        .value = shownMoney(game.locale, gross),
                        .detail = returnText(gross, film.budget)},
                       {.label = "Opening weekend", .value = shownMoney(game.locale, takings.front())},
                       {.label = "Budget", .value = shownMoney(game.locale, film.budget)}}},
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
  const std::size_t index = filmIndex(world, filmId);
  if (index == world.saveAllFilmList.size()) return;
  if (world.saveAllFilmList[index].typeOfFilm != filmType::feature) {
    return stage.show(Notice{.title = "🎞 No Theatrical Release 🎞",
                             .message =
                                 "\nThis film was not released in theatres and does not have any box office "
                                 "data."});
  }
  stage.open(std::make_unique<ImbdBoxOfficeDetailViewController>(filmId));
}

}  // namespace tb
