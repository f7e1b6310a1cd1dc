#include "screens/film/box_office_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/film/box_office_parts.h"
#include "screens/film/imbd_box_office_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

namespace {

Card theaterCard(const Game& game, const InTheaters& film) {
  return {.title = film.title,
          .subtitle = film.description,
          .picture = {posterOfFilm(game.world, film.filmId, film.imageString)},
          .nodes = {Tiles{{{.label = "Weekend", .value = bigMoney(game.locale, film.weekendEarnings)},
                           {.label = "Total", .value = bigMoney(game.locale, film.totalGross)}}}},
          .press = [id = film.filmId](Stage& stage) { openBoxOfficeDetail(stage, id); }};
}

Row rankedRow(const Game& game, std::size_t place, const BoxOfficeWeekends& film) {
  Row row{
      .label = tb::format("{}. {}", place, film.title),
      .value = bigMoney(game.locale, film.totalGross),
      .detail = tb::format("{} • Domestic {}", film.yearReleased, bigMoney(game.locale, film.domesticGross))};
  if (film.filmId < 0) return row;
  const std::string gain = returnText(film.totalGross, film.budget);
  if (!gain.empty()) row.detail += " " + gain;
  row.tone = Tone::accent;
  row.picture = {posterOfFilm(game.world, film.filmId, film.imageString)};
  row.press = [id = film.filmId](Stage& stage) { openBoxOfficeDetail(stage, id); };
  return row;
}

}  // namespace

void BoxOfficeViewController::appear(Stage& stage) {
  const WorldState& world = stage.game().world;
  in_theaters_ = inTheaters(world);
  all_time_ = highestGrossing(world);
  own_ = filmsByGross(world);
}

Section BoxOfficeViewController::theaters(const Game& game) const {
  Section section{.heading = "IN THEATERS"};
  for (const InTheaters& film : in_theaters_) section.nodes.push_back(theaterCard(game, film));
  if (in_theaters_.empty()) section.nodes.push_back(caption("Nothing in theaters"));
  return section;
}

Section BoxOfficeViewController::ranking(const Game& game) {
  const std::vector<BoxOfficeWeekends>& films = shows_own_ ? own_ : all_time_;
  return {.heading = "HIGHEST GROSSING",
          .nodes = {
              Choice{.label = "Films",
                     .options = {{.label = "All time",
                                  .chosen = !shows_own_,
                                  .press = [this](Stage&) { shows_own_ = false; }},
                                 {.label = "Yours",
                                  .chosen = shows_own_,
                                  .press = [this](Stage&) { shows_own_ = true; }}}},
              PagedList{.key = shows_own_ ? "own" : "all time",
                        .size = films.size(),
                        .nodeAt = [&game, &films](
                                      std::size_t index) { return rankedRow(game, index + 1, films[index]); },
                        .whenEmpty = "None of your films has opened in a theater yet."}}};
}

Page BoxOfficeViewController::view(const Game& game) {
  return {.title = "Box Office", .subtitle = "Worldwide", .nodes = {theaters(game), ranking(game)}};
}

}  // namespace tb
