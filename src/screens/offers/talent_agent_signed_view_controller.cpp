#include "screens/offers/talent_agent_signed_view_controller.h"

#include <cmath>
#include <string>
#include <vector>

#include "career/agent_auditions.h"
#include "career/agent_contract.h"
#include "career/agent_year.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "core/text.h"
#include "screens/offers/agent_terms.h"
#include "screens/offers/offer_parts.h"
#include "screens/parts.h"
#include "screens/work/open_project.h"

namespace tb {

using namespace view;

namespace {

std::string recordWords(const TalentAgent& agent) {
  if (agent.bookings == 0) {
    return agent.name + " hasn't sent you any roles yet but will be on the lookout for you.";
  }
  return tb::format(
      "{} has been responsible for sending you a total of {} opportunities from relationships they have "
      "built "
      "in the industry.",
      agent.name, agent.bookings);
}

std::string contractWords(const WorldState& world, const TalentAgent& agent) {
  const std::int64_t left = agent.weekContractEnds - world.weekNumberForTracking;
  if (left == 0) return " Your contract expires this week.";
  if (left < 0) return " Your contract has expired and you can release your agent without penalty.";
  return tb::format(" Your contract runs for {} more.", counted(left, "week"));
}

std::string nextWords(const WorldState& world) {
  const auto weeks = weeksToNextAudition(world);
  return weeks ? tb::format("in {}", counted(*weeks, "week")) : "Not planned";
}

Section thisYear(const Game& game, const TalentAgent& agent) {
  const AgentYear year = agentYear(game.world, agent);
  return {
      .heading = "THIS YEAR",
      .nodes = {Tiles{{{.label = "Sent", .value = std::to_string(year.sent), .detail = "to castings or sets"},
                       {.label = "Booked", .value = std::to_string(year.booked)},
                       {.label = "Commission", .value = bigMoney(game.locale, year.commission)}}},
                Row{.label = "Fans gained", .value = tb::format("× {:.2f}", game.world.agentFanBonus)},
                Row{.label = "Next opportunity", .value = nextWords(game.world)}}};
}

Section inAll(const Game& game, const TalentAgent& agent) {
  return {
      .heading = "SO FAR",
      .nodes = {scoreMeter("Relationship", static_cast<std::int64_t>(std::round(agent.relationship))),
                Row{.label = "Commission earned", .value = bigMoney(game.locale, agent.totalAgentEarnings)}}};
}

Section work(const WorldState& world, const TalentAgent& agent) {
  constexpr std::size_t projectsAtOnce = 5;
  std::vector<std::size_t> found;
  for (std::size_t index = world.saveAllAuditionList.size(); index-- > 0;) {
    if (world.saveAllAuditionList[index].sourceId == agent.id) found.push_back(index);
  }
  return {.heading = "THROUGH " + upperCase(agent.agency),
          .nodes = {PagedList{.key = "work",
                              .size = found.size(),
                              .nodeAt =
                                  [&world, found](std::size_t place) {
                                    return projectRow(world, world.saveAllAuditionList[found[place]]);
                                  },
                              .whenEmpty = "Nothing yet.",
                              .pageLength = projectsAtOnce}}};
}

// --- Release ---

void release(Stage& stage) {
  releaseAgent(stage.game());
  stage.close();
}

void askToRelease(Stage& stage) {
  const double penalty = releasePenalty(stage.game().world);
  const std::string price = penalty > 0 ? tb::format("Breaking the contract costs you {}.",
                                                     wholeMoney(stage.game().locale, penalty))
                                        : "The contract has run its course: it costs you nothing.";
  stage.ask(Notice{.title = "✂️ Release Your Agent? ✂️",
                   .message = tb::format(
                       "\n{} Offers of a share instead of pay leave your inbox with your agent.", price)},
            {{.label = "Keep", .weight = Button::Weight::primary},
             {.label = "Release", .press = release, .weight = Button::Weight::destructive}});
}

Button releaseButton(const Game& game) {
  const double penalty = releasePenalty(game.world);
  Button button{.label = "Release", .press = askToRelease, .weight = Button::Weight::destructive};
  if (penalty > 0) button.price = moneyPrice(game.locale, penalty);
  return button;
}

}  // namespace

Page TalentAgentSignedViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const TalentAgent* const agent = currentAgent(world);
  if (agent == nullptr) return {.title = "Talent agent", .nodes = {caption("You have no agent.")}};
  return {.title = agent->name,
          .subtitle = agent->agency,
          .nodes = {Card{.title = agent->name,
                         .subtitle = agent->agency,
                         .picture = {portraitOf(*agent)},
                         .nodes = {Text{.text = recordWords(*agent) + contractWords(world, *agent)}}},
                    thisYear(game, *agent), inAll(game, *agent), work(world, *agent),
                    agentTerms(game, *agent), releaseButton(game)}};
}

}  // namespace tb
