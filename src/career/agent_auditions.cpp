#include "career/agent_auditions.h"

#include <algorithm>
#include <array>
#include <utility>

#include "banks/agents_banks.h"
#include "banks/draw.h"
#include "career/casting_board.h"
#include "career/project_start.h"
#include "core/calendar.h"
#include "core/log.h"
#include "core/signed_agent.h"

namespace tb {

namespace {

// A rating at or below the first roll leaves it to the performer's showreel. Otherwise a second roll below
// half of the rating gets the role without an audition.
std::int64_t drawStage(Game& game, std::int64_t rating) {
  if (RandomBetween(game.random, 1, 100) >= rating) return funnel::submitted;
  return RandomBetween(game.random, 10, 100) * 2 < rating ? funnel::booked : funnel::invited;
}

struct StageWords {
  Bank bank;
  NewsKind news;
};

const StageWords& wordsOf(std::int64_t stage) {
  static constexpr std::array<StageWords, 3> words = {{{bank::agentSubmitted, NewsKind::agent},
                                                       {bank::agentLinedUp, NewsKind::invitation},
                                                       {bank::agentBooked, NewsKind::offer}}};
  return words[static_cast<std::size_t>(stage)];
}

Audition findProject(Game& game, const TalentAgent& agent) {
  game.world.filmId += 1;
  Audition project = projectFrom(drawAgentListing(game, game.world.filmId, agent.maxBudget));
  startProject(game, project);
  project.source = agent.agency;
  project.sourceId = agent.id;
  project.funnelStage = drawStage(game, agent.rating);
  return project;
}

}  // namespace

void agentAuditionStep(Game& game) {
  WorldState& world = game.world;
  const auto index = signedAgent(world);
  if (!index) return;
  const std::int64_t beat = world.saveAllTalentAgents[*index].weekToSendAudition;
  if (beat <= 0 || world.weekNumber % beat != 0) return;

  TalentAgent& agent = world.saveAllTalentAgents.edit(*index);
  agent.bookings += 1;
  Audition project = findProject(game, agent);
  const StageWords& words = wordsOf(project.funnelStage);
  logLine(world, {words.news, project.filmId},
          fill(drawFreshRow(game, words.bank, subjectOf(project)),
               {{"title", project.title}, {"agent", agent.name}, {"agency", agent.agency}}));
  world.saveAllAuditionList.push_back(std::move(project));
}

std::optional<std::int64_t> weeksToNextAudition(const WorldState& world) {
  const TalentAgent* const agent = currentAgent(world);
  if (agent == nullptr || agent->weekToSendAudition <= 0) return {};
  const std::int64_t beat = agent->weekToSendAudition;
  // The summary of the last week of a year still counts on, to week 53, before the year begins again.
  for (std::int64_t ahead = 1; ahead <= weeksPerYear; ++ahead) {
    const std::int64_t week = (world.weekNumber + ahead - 2) % weeksPerYear + 2;
    if (week % beat == 0) return ahead;
  }
  return {};
}

}  // namespace tb
