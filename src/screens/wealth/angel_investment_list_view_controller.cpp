#include "screens/wealth/angel_investment_list_view_controller.h"

#include <cmath>
#include <string>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/wealth/angel_investment_detail_view_controller.h"
#include "screens/work/project_words.h"
#include "wealth/angel_investing.h"

namespace tb {

using namespace view;

namespace {

std::string resultWords(const Locale& locale, const Investments& investments) {
  if (investments.onTheMarket == 0) {
    return tb::format(
        "You’ve backed {} films and series and helped bring them to market. Once they’re released, you’ll "
        "start "
        "seeing returns.",
        investments.rows.size());
  }
  const std::string start =
      tb::format("You invested in {} films/series, bringing them to market ", investments.onTheMarket);
  if (investments.gain < 0) return start + "but lost -" + bigMoney(locale, -investments.gain);
  return start + "and collecting +" + bigMoney(locale, investments.gain);
}

std::vector<Node> summaryOf(const Locale& locale, const Investments& investments) {
  if (investments.rows.empty()) return {};
  const Tone tone = investments.onTheMarket == 0 ? Tone::plain
                    : investments.gain < 0       ? Tone::warning
                                                 : Tone::good;
  return {Text{.text = tb::format("You have made {} investments into films for a total of {}",
                                  investments.rows.size(), bigMoney(locale, investments.invested))},
          Text{.text = resultWords(locale, investments), .tone = tone}};
}

void openInvestment(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  const auto project = find(world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!project) return;
  if (isReleased(world, world.saveAllAuditionList[*project])) {
    return stage.open<AngelInvestmentDetailViewController>(filmId);
  }
  stage.show(
      Notice{.title = "🎬 In the Works 🎬",
             .message = "\nMore details will be available, once your film is closer to being released"});
}

// --- Rows ---

// A project whose casting never began is not made, and its money is lost.
std::string progressOf(const WorldState& world, const Audition& project) {
  if (project.funnelStage == funnel::closed) return "Never made";
  if (project.funnelStage < funnel::booked) return "Casting " + whenIs(world, project.weekAudition);
  return progressWords(world, project);
}

Row investmentRow(const Game& game, const InvestmentDetails& details) {
  const WorldState& world = game.world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, details.filmId);
  const Audition& project = world.saveAllAuditionList[*index];
  const std::string score = details.rating > 0 ? tb::format(" • Metascore {}", details.rating) : "";
  return {.label = details.title,
          .value = wholeMoney(game.locale, static_cast<double>(details.ask)),
          .detail = tb::format("{} • {} • {}{}", details.subtitle, typeName(details.type),
                               progressOf(world, project), score),
          .picture = {posterOf(world, project)},
          .press = [id = details.filmId](Stage& stage) { openInvestment(stage, id); }};
}

}  // namespace

Page AngelInvestmentListViewController::view(const Game& game) {
  const Investments investments = listInvestments(game.world);
  Page page{.title = "Investments",
            .subtitle = "Films and series with your money in them",
            .nodes = summaryOf(game.locale, investments)};
  page.nodes.push_back(PagedList{
      .key = "investments",
      .size = investments.rows.size(),
      .nodeAt = [&game,
                 rows = investments.rows](std::size_t index) { return investmentRow(game, rows[index]); },
      .whenEmpty =
          "You have not invested in a film yet. Producers write to performers with fifteen leading or "
          "supporting roles behind them; their offers come by email."});
  return page;
}

}  // namespace tb
