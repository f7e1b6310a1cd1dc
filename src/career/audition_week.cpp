#include "career/audition_week.h"

#include <string>

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "core/debug_log.h"
#include "core/format.h"
#include "core/log.h"
#include "core/signed_agent.h"
#include "film/box_office.h"
#include "film/film_record.h"
#include "film/released_project.h"

namespace tb {

namespace {

// Changes of the relationship with the agent by the outcome of the agency's projects, in points.
namespace agentMood {
constexpr double silence = -1;
constexpr double invitation = 2;
constexpr double rejection = -2.5;
constexpr double offer = 5;
constexpr double wrap = 3;
}  // namespace agentMood

constexpr double invitationExperience = 0.25;  // fraction of the difficulty
constexpr double offerDivisor = 3;             // divisor of the difficulty
constexpr double maxShootExperience = 8;       // points
constexpr double maxCommercialExperience = 2;
constexpr std::int64_t bribeThatSkipsRoll = 51;

// The state of one pass over the list.
struct Pass {
  Game& game;
  WorldState& world = game.world;
  double agentRelationshipDelta = 0;

  [[nodiscard]] std::int64_t week() const { return world.weekNumberForTracking; }
  [[nodiscard]] const Audition& project(std::size_t index) const { return world.saveAllAuditionList[index]; }
  void moveTo(std::size_t index, std::int64_t funnelStage) {
    world.saveAllAuditionList.edit(index).funnelStage = funnelStage;
  }
  void changeAgentMood(std::size_t index, double points) {
    if (project(index).sourceId > 0) agentRelationshipDelta += points;
  }
};

// The feed never names a commercial; the log does.
std::string nameOf(const Audition& project) {
  return project.typeOfFilm == filmType::commercial ? "a commercial" : project.title;
}

// Casting of projects that the performer only directs or invests in is not announced, except commercials.
bool isAnnounced(const Audition& project) {
  return project.didAct >= 1 || project.typeOfFilm == filmType::commercial;
}

// Wins one time in three. A non-member who auditions for a principal role gets a second draw.
bool winsRoll(Pass& pass, const Audition& project) {
  const bool getsAnotherChance = project.isPrincipal == rolePart::principal && pass.world.isSAG == 0;
  const std::int64_t face = RandomBetween(pass.game.random, 1, 3);
  return face == 2 || (face == 3 && getsAnotherChance);
}

// A score that meets the chance still has to win the die roll. A lower score may get that roll too, with a
// chance that grows as it comes closer.
bool winsAudition(Pass& pass, const Audition& project, std::int64_t score, std::int64_t chance) {
  if (score < chance && RandomBetween(pass.game.random, 1, chance) >= score) return false;
  return winsRoll(pass, project);
}

std::int64_t drawChance(Pass& pass, const Audition& project) {
  return RandomBetween(pass.game.random, 0, static_cast<std::int64_t>(project.auditionDifficulty));
}

// --- Submitted ---

void invite(Pass& pass, std::size_t index) {
  const Audition& project = pass.project(index);
  if (project.isPrincipal <= rolePart::principal) {
    pass.moveTo(index, funnel::invited);
    if (isAnnounced(project)) {
      const std::string weeks = std::to_string(project.weekAudition - pass.week() - 1);
      feedLine(pass.world, {NewsKind::invitation, project.filmId},
               tb::format("You were invited to audition for {} in {} week(s).", nameOf(project), weeks));
      logActivity(pass.world,
                  fill(drawFreshRow(pass.game, bank::invitation), {{"title", project.title}, {"n", weeks}}));
      pass.world.experience += project.auditionDifficulty * invitationExperience;
    }
  }
  pass.changeAgentMood(index, agentMood::invitation);
}

// Two times in three the submission stays open for another week.
void leaveUnanswered(Pass& pass, std::size_t index) {
  if (RandomRange(pass.game.random, 3) != 1) return;
  const Audition& project = pass.project(index);
  pass.moveTo(index, funnel::closed);
  feedLine(pass.world, {NewsKind::silence, project.filmId},
           tb::format("You never heard back after applying for {}.", nameOf(project)));
  logActivity(pass.world, fill(drawFreshRow(pass.game, bank::silence), {{"title", project.title}}));
  pass.changeAgentMood(index, agentMood::silence);
}

bool isInvited(Pass& pass, const Audition& project) {
  const std::int64_t chance = drawChance(pass, project);
  if (project.didAct < 1) return true;
  const std::int64_t score = RandomBetween(pass.game.random, 0, pass.world.showreelScore) + project.didBribe;
  debugLog(tb::format("My experience == {} -- {} -- {}", project.didBribe, score, project.title));
  const bool prevailed = winsAudition(pass, project, score, chance);
  return prevailed || (score >= chance && project.didBribe >= bribeThatSkipsRoll);
}

void answerSubmission(Pass& pass, std::size_t index) {
  if (pass.week() >= pass.project(index).weekAudition) return pass.moveTo(index, funnel::closed);
  if (isInvited(pass, pass.project(index))) return invite(pass, index);
  leaveUnanswered(pass, index);
}

// --- Invited ---

void offerRole(Pass& pass, std::size_t index) {
  const Audition& project = pass.project(index);
  pass.moveTo(index, funnel::booked);
  if (isAnnounced(project)) {
    feedLine(pass.world, {NewsKind::offer, project.filmId},
             tb::format("You auditioned for {} and the cast director offered you the role. Shooting begins "
                        "in {} week(s).",
                        nameOf(project), project.weekToWork - pass.week() - 1));
    pass.world.experience += project.auditionDifficulty / offerDivisor;
  }
  pass.changeAgentMood(index, agentMood::offer);
}

// The record stays in the invited stage; its audition week is in the past, so it is not handled again.
void reject(Pass& pass, std::size_t index) {
  const Audition& project = pass.project(index);
  feedLine(pass.world, {NewsKind::refusal, project.filmId},
           tb::format("You auditioned for {} but you were not selected for the role.", nameOf(project)));
  pass.changeAgentMood(index, agentMood::rejection);
}

void audition(Pass& pass, std::size_t index) {
  const Audition& project = pass.project(index);
  if (pass.week() != project.weekAudition) return;
  const std::int64_t chance = drawChance(pass, project);
  const std::int64_t rating =
      RandomBetween(pass.game.random, 0, static_cast<std::int64_t>(project.rehearsalRating));
  debugLog(tb::format("Audition Chance -- {} -- Audition Rating -- {}", chance, rating));
  if (project.didAct < 1 || winsAudition(pass, project, rating, chance)) return offerRole(pass, index);
  reject(pass, index);
}

// --- Booked ---

News wrapOf(const Audition& project) { return {NewsKind::wrap, project.filmId}; }

void logShoot(Pass& pass, const Audition& project) {
  const bool commercial = project.typeOfFilm == filmType::commercial;
  const std::string season = project.seasonNumber >= 2 ? tb::format(" Season {}", project.seasonNumber) : "";
  feedLine(pass.world, wrapOf(project),
           commercial ? "You wrapped filming for a commercial."
                      : tb::format("You wrapped filming for {}{}.", project.title, season));
  pass.world.experience +=
      RandomUnit(pass.game.random, 0, commercial ? maxCommercialExperience : maxShootExperience);
}

void logOwnProduction(Pass& pass, const Audition& project) {
  feedLine(pass.world, wrapOf(project),
           project.typeOfFilm == filmType::feature
               ? tb::format("Filming wrapped for {}, a film you directed and produced.", project.title)
               : tb::format("Filming wrapped for {}, a TV-Series you directed and produced. Pitch it to "
                            "networks prior to release.",
                            project.title));
}

void logInvestment(Pass& pass, const Audition& project) {
  const std::string stake = tb::format("{:.0f}%", project.equityPercentage);
  logLine(pass.world, wrapOf(project),
          fill(drawFreshRow(pass.game, bank::investmentWrap), {{"title", project.title}, {"stake", stake}}));
}

void wrap(Pass& pass, std::size_t index) {
  const Audition& project = pass.project(index);
  if (pass.week() != project.weekToWork) return;
  addFilm(pass.game, project);
  if (isAnnounced(project)) {
    logShoot(pass, project);
  } else if (project.isPrincipal == rolePart::ownProduction) {
    logOwnProduction(pass, project);
  } else {
    logInvestment(pass, project);
  }
  pass.changeAgentMood(index, agentMood::wrap);
  pass.moveTo(index, funnel::wrapped);
}

// --- The pass ---

void advanceProject(Pass& pass, std::size_t index) {
  switch (pass.project(index).funnelStage) {
    case funnel::submitted:
      return answerSubmission(pass, index);
    case funnel::invited:
      return audition(pass, index);
    case funnel::booked:
      return wrap(pass, index);
    case funnel::wrapped:
      return advanceReleasedProject(pass.game, pass.project(index));
    default:
      return;  // closed
  }
}

void applyAgentMood(Pass& pass) {
  const auto agent = signedAgent(pass.world);
  if (pass.agentRelationshipDelta == 0 || !agent) return;
  pass.world.saveAllTalentAgents.edit(*agent).relationship += pass.agentRelationshipDelta;
}

}  // namespace

void resolveAuditionsForWeek(Game& game) {
  Pass pass{.game = game};
  const std::size_t records = game.world.saveAllAuditionList.size();
  for (std::size_t index = 0; index < records; ++index) advanceProject(pass, index);
  applyAgentMood(pass);

  // fanGainCarry is added every week and not reset until the next launch, on purpose.
  if (records > 0) game.world.totalFans += game.world.fanGainCarry;
  postBoxOfficeChirp(game);
}

}  // namespace tb
