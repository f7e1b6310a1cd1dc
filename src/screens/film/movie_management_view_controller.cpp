#include "screens/film/movie_management_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office.h"
#include "screens/film/box_office_parts.h"
#include "screens/film/imbd_box_office_detail_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

// Indexes of the projects, latest first.
std::vector<std::size_t> productions(const WorldState& world) {
  std::vector<std::size_t> found;
  for (std::size_t index = world.saveAllAuditionList.size(); index-- > 0;) {
    const Audition& project = world.saveAllAuditionList[index];
    if (project.isPrincipal == rolePart::ownProduction || project.didAct == 0) found.push_back(index);
  }
  return found;
}

std::string progressOf(const WorldState& world, const Audition& project) {
  if (project.funnelStage == funnel::closed) return "Shelved";
  if (project.funnelStage < funnel::wrapped) return "Wraps " + whenIs(world, project.weekToWork);
  return isReleased(world, project) ? "Released" : "Opens " + whenIs(world, project.weekReleased);
}

Card productionCard(const Game& game, const Audition& project) {
  const bool own = project.isPrincipal == rolePart::ownProduction;
  Card card{
      .title = project.title,
      .subtitle = tb::format("{} • {}", own ? "Directed and produced by you" : "Financed by you",
                             progressOf(game.world, project)),
      .picture = {posterOf(game.world, project)},
      .nodes = {caption(project.description),
                Tiles{{{.label = "Budget", .value = bigMoney(game.locale, project.budget)},
                       {.label = "Invested", .value = bigMoney(game.locale, project.equityDollarsInvested)},
                       {.label = "Your stake", .value = tb::format("{:.1f}%", project.equityPercentage)}}}}};
  if (const auto gross = grossOf(game.world, project.filmId)) {
    card.nodes.push_back(
        Row{.label = "Box office of " + project.title,
            .value = bigMoney(game.locale, *gross),
            .detail = returnText(*gross, project.budget),
            .press = [id = project.filmId](Stage& stage) { openBoxOfficeDetail(stage, id); }});
  }
  if (isReleased(game.world, project)) {
    card.nodes.push_back(Row{.label = "Imbd page of " + project.title,
                             .press = [id = project.filmId](Stage& stage) { openTitlePage(stage, id); }});
  }
  return card;
}

}  // namespace

Page MovieManagementViewController::view(const Game& game) {
  const std::vector<std::size_t> rows = productions(game.world);
  return {.title = "Productions",
          .subtitle = "Films with your money or your name behind them",
          .nodes = {PagedList{.key = "productions",
                              .size = rows.size(),
                              .nodeAt =
                                  [&game, rows](std::size_t index) {
                                    return productionCard(game, game.world.saveAllAuditionList[rows[index]]);
                                  },
                              .whenEmpty = "You have not financed or produced a title yet."}}};
}

}  // namespace tb
