#include "career/franchise_offer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "career/casting_terms.h"
#include "career/project_start.h"
#include "career/schedule.h"
#include "core/format.h"
#include "core/log.h"
#include "core/signed_agent.h"
#include "film/catalogue.h"
#include "social/emailed_project.h"
#include "social/inbox.h"

namespace tb {

namespace {

constexpr char leadRole[] = "Lead";

// Of a renewal whose success is not known: a saga pays its lead like a returning one.
constexpr double renewalFactor = 1.1;

// --- The saga ---

// First films; they precede the other films of their saga in the catalogue.
std::vector<const MovieFranchise*> firstFilms() {
  std::vector<const MovieFranchise*> films;
  for (const MovieFranchise& entry : movieFranchises()) {
    if (!std::ranges::contains(films, entry.id, &MovieFranchise::id)) films.push_back(&entry);
  }
  return films;
}

bool isInSaga(const WorldState& world, std::int64_t sagaId) {
  return std::ranges::contains(world.saveAllAuditionList, sagaId, &Audition::franchiseId);
}

const MovieFranchise& drawSaga(Game& game) {
  const std::vector<const MovieFranchise*> all = firstFilms();
  std::vector<const MovieFranchise*> open = all;
  std::erase_if(open, [&](const MovieFranchise* film) { return isInSaga(game.world, film->id); });
  return *RandomElement<const MovieFranchise*>(game.random, open.empty() ? all : open);
}

Movie asMovie(const MovieFranchise& entry) {
  return {.title = entry.title,
          .shortSummary = entry.shortSummary,
          .type = filmType::feature,
          .genre = entry.genre,
          .longSummaryTemplate = entry.longSummaryTemplate,
          .imageString = entry.imageString,
          .sights = entry.sights};
}

Audition drawFirstFilm(Game& game, const TalentAgent& agent) {
  const MovieFranchise& saga = drawSaga(game);
  const Movie movie = asMovie(saga);
  CastingListing listing{.movie = &movie, .isPrincipal = rolePart::principal, .isUnion = game.world.isSAG};
  completeListing(game, listing, drawTvRole(game), agent.maxBudget);
  listing.role = leadRole;
  Audition project = projectFrom(listing);
  project.payment *= (renewalFactor + RandomUnit(game.random, 0.5, 1.5)) * 0.5;
  project.franchise = saga.movieNumber;
  project.franchiseId = saga.id;
  return project;
}

}  // namespace

const Audition* franchiseOffer(const WorldState& world, std::int64_t emailId) {
  if (currentAgent(world) == nullptr) return nullptr;
  return emailedProject(world, &WorldState::franchiseOffers, emailId);
}

void drawFranchiseOffer(Game& game, std::int64_t emailId) {
  const TalentAgent* const agent = currentAgent(game.world);
  if (agent == nullptr || emailWith(game.world, emailId) == nullptr) return;
  if (franchiseOffer(game.world, emailId) != nullptr) return;
  game.world.franchiseOffers.push_back({.emailId = emailId, .project = drawFirstFilm(game, *agent)});
}

std::string acceptFranchise(Game& game, std::int64_t emailId) {
  WorldState& world = game.world;
  const Audition* const offer = franchiseOffer(world, emailId);
  if (offer == nullptr) return {};
  const TalentAgent& agent = *currentAgent(world);
  Audition project = *offer;
  world.filmId += 1;
  project.filmId = world.filmId;
  project.source = agent.agency;
  project.sourceId = agent.id;
  project.funnelStage = funnel::booked;
  const Schedule schedule = drawSchedule(game);
  project.weekAudition = schedule.weekAudition;
  project.weekToWork = schedule.weekToWork;
  startProject(game, project);
  project.isContinued = 0;
  project.seasonNumber = 1;

  std::string line = tb::format("You signed on for a saga, beginning with the lead in {}.", project.title);
  logActivity(world, line);
  world.saveAllAuditionList.push_back(std::move(project));
  closeEmailedProject(game, &WorldState::franchiseOffers, emailId);
  return line;
}

}  // namespace tb
