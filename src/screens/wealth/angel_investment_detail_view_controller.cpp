#include "screens/wealth/angel_investment_detail_view_controller.h"

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office.h"
#include "screens/film/box_office_parts.h"
#include "screens/film/imbd_box_office_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/work/project_words.h"
#include "wealth/angel_investing.h"

namespace tb {

using namespace view;

namespace {

Row returnRow(const Game& game, const char* label, double amount, const char* whenNone) {
  return {.label = label,
          .value = amount > 0 ? "+" + bigMoney(game.locale, amount) : "",
          .detail = amount > 0 ? "" : whenNone,
          .tone = amount > 0 ? Tone::good : Tone::quiet};
}

Section returns(const Game& game, const Audition& project) {
  const InvestmentReturns paid = returnsOf(game.world, project.filmId);
  const double result = paid.boxOffice + paid.syndication - project.equityDollarsInvested;
  return {
      .heading = "RETURNS",
      .nodes = {Tiles{{{.label = "Invested", .value = bigMoney(game.locale, project.equityDollarsInvested)},
                       {.label = "Your stake", .value = tb::format("{:.0f}%", project.equityPercentage)},
                       {.label = "Result so far",
                        .value = (result > 0 ? "+" : "") + bigMoney(game.locale, result),
                        .tone = result < 0 ? Tone::warning : Tone::good}}},
                returnRow(game, "Box Office Profits", paid.boxOffice,
                          project.typeOfFilm == filmType::series ? "A series has no box office"
                                                                 : "Paid eight weeks after the opening"),
                returnRow(game, "Syndication Deal", paid.syndication, "No network has bought it yet")}};
}

}  // namespace

Page AngelInvestmentDetailViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, film_id_);
  if (!index) return {.title = "Investment", .nodes = {caption("This title is not on your list anymore.")}};
  const Audition& project = world.saveAllAuditionList[*index];
  Page page{.title = titleWithSeason(project),
            .subtitle = tb::format("{} • {}", typeName(project.typeOfFilm), progressWords(world, project)),
            .nodes = {posterOf(world, project), returns(game, project)}};
  if (const auto gross = grossOf(world, project.filmId)) {
    page.nodes.push_back(Row{.label = "Box office",
                             .value = bigMoney(game.locale, *gross),
                             .detail = returnText(*gross, project.budget),
                             .press = [id = film_id_](Stage& stage) { openBoxOfficeDetail(stage, id); }});
  }
  page.nodes.push_back(
      Row{.label = "Imbd page", .press = [id = film_id_](Stage& stage) { openTitlePage(stage, id); }});
  return page;
}

}  // namespace tb
