#include <algorithm>
#include <functional>

#include "career/agent_auditions.h"
#include "career/agent_offer.h"
#include "career/classes.h"
#include "career/proven_roles.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "core/talent_scores.h"
#include "core/text.h"
#include "film/awards.h"
#include "film/metflix_chart.h"
#include "screens/backstage/casting_network_view_controller.h"
#include "screens/film/box_office_view_controller.h"
#include "screens/film/movie_management_view_controller.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/metflix/metflix_top_ten_view_controller.h"
#include "screens/metflix/movie_award_view_controller.h"
#include "screens/offers/email_inbox_view_controller.h"
#include "screens/offers/talent_agent_signed_view_controller.h"
#include "screens/parts.h"
#include "screens/reception/top250_movies_view_controller.h"
#include "screens/talent/acting_classes_view_controller.h"
#include "screens/talent/actors_guild_view_controller.h"
#include "screens/talent/talent_traits_view_controller.h"
#include "screens/work/active_audition_view_controller.h"
#include "screens/work/job_board_view_controller.h"

namespace tb {

namespace {

std::string classesSummary(const WorldState& world) {
  const auto running = std::ranges::count_if(
      world.saveAllCompletedClasses, [](const ActingClass& taken) { return taken.weeksRemaining > 0; });
  return running == 0 ? "Learn the craft at Julien" : tb::format("{} running", running);
}

std::string projectsSummary(const WorldState& world) {
  const auto at = [&](std::int64_t funnelStage) {
    return std::ranges::count_if(world.saveAllAuditionList, [&](const Audition& project) {
      return project.funnelStage == funnelStage && project.didAct == 1;
    });
  };
  // Lost auditions also have the stage `invited`, with a past audition week.
  const auto invited = std::ranges::count_if(world.saveAllAuditionList, [&](const Audition& project) {
    return project.funnelStage == funnel::invited && project.didAct == 1 &&
           project.weekAudition >= world.weekNumberForTracking;
  });
  return tb::format("{} submitted • {} invited • {} booked", at(funnel::submitted), invited,
                    at(funnel::booked));
}

// The signed agent; without one, what is missing for an offer.
view::Row agentRow(const WorldState& world) {
  if (const TalentAgent* const agent = currentAgent(world)) {
    const auto weeks = weeksToNextAudition(world);
    const std::string next = weeks ? "Next opportunity in " + counted(*weeks, "week") : agent->agency;
    return leadingTo<TalentAgentSignedViewController>("Talent Agent", next, agent->name);
  }
  if (world.isSAG == 0) {
    return leadingTo<ActorsGuildViewController>("Talent Agent",
                                                "Agents write to members of the Actor's Guild");
  }
  const std::size_t roles = provenRoles(world).size();
  if (roles < agentRoles) {
    return leadingTo<ActiveAuditionViewController>(
        "Talent Agent",
        tb::format("Agents write after {} booked principal roles: you have {}", agentRoles, roles));
  }
  return leadingTo<EmailInboxViewController>(
      "Talent Agent", "An agent may write every tenth week: the more experience and talent, the sooner");
}

std::string jobSummary(const WorldState& world) {
  return world.weeklyJobTitle.empty() ? "Weekly pay for weekly energy" : world.weeklyJobTitle;
}

std::string chartSummary(const WorldState& world) {
  const auto own = std::ranges::count_if(world.saveAllTopTenList, std::not_fn(isInvented)) +
                   std::ranges::count_if(world.saveAllTopTenSeriesList, std::not_fn(isInvented));
  return own == 0 ? "What the world streams this week" : counted(own, "title") + " of yours on the charts";
}

std::string awardSummary(const WorldState& world) {
  const bool hasSealed = std::ranges::any_of(
      world.saveAllMovieAwards, [&world](const Award& award) { return !isRevealed(world, award); });
  if (hasSealed) return "This year's envelopes are sealed";
  return world.saveAllMovieAwards.empty() ? "For titles with a metascore of 85 and more"
                                          : "The nominations, and your shelf";
}

}  // namespace

std::vector<view::Node> workTab(const Game& game) {
  const WorldState& world = game.world;
  std::vector<view::Node> nodes = nextAtWork(game);
  nodes.append_range(std::vector<view::Node>{
      view::Tiles{{
          scoreTile("Talent", overallTalent(world)),
          {.label = "Experience",
           .value = plainCount(game.locale, static_cast<std::int64_t>(world.experience))},
          scoreTile("Showreel", world.showreelScore),
      }},
      view::Section{
          .heading = "WORK",
          .nodes = {leadingTo<CastingNetworkViewController>("Casting Network", "Submit for today's roles"),
                    leadingTo<ActiveAuditionViewController>("Auditions", projectsSummary(world)),
                    leadingTo<JobBoardViewController>("Job Board", jobSummary(world)), agentRow(world)}},
      view::Section{.heading = "INDUSTRY",
                    .nodes = {leadingTo<BoxOfficeViewController>("Box Office", "What the world is watching"),
                              leadingTo<MetflixTopTenViewController>("Metflix Top 10", chartSummary(world)),
                              leadingTo<Top250MoviesViewController>("Top 250", "The best of all time"),
                              leadingTo<MovieAwardViewController>("Awards", awardSummary(world)),
                              leadingTo<MovieManagementViewController>(
                                  "Productions", "Titles with your money behind them")}},
      view::Section{
          .heading = "CRAFT",
          .nodes = {leadingTo<TalentTraitsViewController>("Talent", "Five traits, trained with energy"),
                    leadingTo<ActingClassesViewController>("Acting Classes", classesSummary(world))}},
  });
  return nodes;
}

}  // namespace tb
