#include "career/royalty_stake.h"

#include <utility>

#include "banks/draw.h"
#include "banks/earnings_banks.h"
#include "career/casting_terms.h"
#include "career/new_title.h"
#include "career/project_start.h"
#include "career/schedule.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/signed_agent.h"
#include "film/catalogue.h"
#include "social/emailed_project.h"
#include "social/inbox.h"

namespace tb {

namespace {

constexpr double minPercent = 0.25;
constexpr double maxForAWeakAgent = 0.35;  // percent, when the agent's royalty bonus is small
constexpr double stepFraction = 0.1;       // fraction of the offered percentage
constexpr std::int64_t chancePerStep = 10;

// --- The offer ---

double drawPercent(Game& game, const TalentAgent& agent) {
  const double highest = agent.royaltyBonus <= minPercent ? maxForAWeakAgent : agent.royaltyBonus;
  return RandomUnit(game.random, minPercent, highest);
}

// A role drawn as on the casting board, without pay.
Audition drawProject(Game& game, double percent) {
  CastingListing listing{.isPrincipal = rolePart::principal};
  const Movie& drawn = RandomElement(game.random, royaltyMovies());
  listing.movie =
      &newTitle(royaltyMovies(), drawn, madeTitles(game.world), [](const Movie&) { return false; });
  listing.role = drawRole(game, listing.isPrincipal);
  listing.isUnion = drawUnionFlag(game);
  completeListing(game, listing, drawTvRole(game));
  Audition project = projectFrom(listing);
  project.payment = 0;
  project.buyout = 0;
  project.residual = 0;  // residuals depend on the fee
  project.royalty = percent;
  return project;
}

// --- The deal ---

Notice book(Game& game, Audition project, double percent) {
  WorldState& world = game.world;
  const TalentAgent& agent = *currentAgent(world);
  world.filmId += 1;
  project.filmId = world.filmId;
  project.royalty = percent;
  project.source = agent.agency;
  project.sourceId = agent.id;
  project.funnelStage = funnel::booked;
  // The schedule starts now, not when the e-mail arrived.
  const Schedule schedule = drawSchedule(game);
  project.weekAudition = schedule.weekAudition;
  project.weekToWork = schedule.weekToWork;
  startProject(game, project);

  const std::string line = fill(drawFreshRow(game, bank::royaltySignedBank),
                                {{"title", project.title}, {"percent", tb::format("{:.2f}%", percent)}});
  logActivity(world, line);
  world.saveAllAuditionList.push_back(std::move(project));
  return {.title = "🎬 Booked 🎬", .message = "\n" + line};
}

}  // namespace

const Audition* stakeOffer(const WorldState& world, std::int64_t emailId) {
  if (currentAgent(world) == nullptr) return nullptr;
  return emailedProject(world, &WorldState::stakeOffers, emailId);
}

void drawStakeOffer(Game& game, std::int64_t emailId) {
  const TalentAgent* const agent = currentAgent(game.world);
  if (agent == nullptr || emailWith(game.world, emailId) == nullptr) return;
  if (stakeOffer(game.world, emailId) != nullptr) return;
  const double percent = drawPercent(game, *agent);
  game.world.stakeOffers.push_back({.emailId = emailId, .project = drawProject(game, percent)});
}

double percentAsked(const Audition& offer, std::int64_t steps) {
  return offer.royalty * (1 + stepFraction * static_cast<double>(steps));
}

std::int64_t chanceOfNegotiation(std::int64_t steps) { return 100 - chancePerStep * steps; }

std::int64_t negotiationBonus(const WorldState& world) {
  const TalentAgent* const agent = currentAgent(world);
  return agent == nullptr ? 0 : agent->negotiationBonus;
}

Refusal stakeRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= stakeNegotiationEnergy) return {};
  return notEnoughEnergy("\nYou don't have enough energy for intensive negotiations.");
}

StakeAnswer negotiateStake(Game& game, std::int64_t emailId, std::int64_t steps) {
  WorldState& world = game.world;
  if (Refusal refusal = stakeRefusal(world)) return {.notice = *std::move(refusal), .isFinal = false};
  const Audition offer = *stakeOffer(world, emailId);
  world.totalEnergyAvailable -= stakeNegotiationEnergy;
  const bool agreed =
      chanceOfNegotiation(steps) + negotiationBonus(world) > RandomRange(game.random, 100) + 1;
  Notice notice = agreed ? book(game, offer, percentAsked(offer, steps))
                         : Notice{.title = "❌ Negotiation Failed! ❌",
                                  .message = "\nThe team declined your offer at that royalty."};
  closeEmailedProject(game, &WorldState::stakeOffers, emailId);
  return {.notice = std::move(notice), .isFinal = true};
}

}  // namespace tb
