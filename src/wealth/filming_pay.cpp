#include "wealth/filming_pay.h"

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "core/guild_dues.h"
#include "core/log.h"
#include "core/number_style.h"

namespace tb {

namespace {

// A commercial's residual checks: every fourth week on the air, for just under a year, each two points of the
// rate below the one before.
constexpr std::int64_t weeksBetweenChecks = 4;
constexpr std::int64_t weekOfLastCheck = 48;
constexpr double lossPerCheck = 0.02;

// The dues come off twice, while only the one half counts towards the lifetime's sum: 6 % for the payer, 3 %
// for the books. Members grumble about it and are meant to.
double netOfDues(WorldState& world, double gross) { return gross - 2 * takeGuildDues(world, gross); }

WeeklyEarnings earningsOf(const WorldState& world, const Audition& project) {
  return {.filmId = project.filmId,
          .filmTitle = project.title,
          .filmType = project.typeOfFilm,
          .yearNumber = world.yearNumber,
          .weekNumberForTracking = world.weekNumberForTracking};
}

void tellOfPayday(Game& game, const Audition& project, double earned) {
  logActivity(game.world, fill(tellRow(game, bank::payday),
                               {{"title", project.title}, {"amount", shortMoney(game.locale, earned)}}));
}

void paySession(Game& game, const Audition& project) {
  WorldState& world = game.world;
  WeeklyEarnings record = earningsOf(world, project);
  record.sessionEarned = world.isSAG == 1 ? netOfDues(world, project.payment) : project.payment;
  record.buyoutEarned = project.buyout;
  if (project.isPrincipal == rolePart::ownProduction) {
    tellOfPayday(game, project, record.sessionEarned + record.buyoutEarned);
  }
  world.saveAllWeeklyEarnings.push_back(std::move(record));
}

// Weeks on the air when a check falls due; 0 in any other week.
std::int64_t weekOfCheck(const WorldState& world, const Audition& project) {
  if (project.typeOfFilm != filmType::commercial || project.residual <= 0) return 0;
  const std::int64_t weeks = world.weekNumberForTracking - project.weekReleased;
  const bool due = weeks > 0 && weeks <= weekOfLastCheck && weeks % weeksBetweenChecks == 0;
  return due ? weeks : 0;
}

// Residuals are guild money: unlike a session's, their dues are taken from members and others alike.
void payResidual(WorldState& world, const Audition& project, std::int64_t weeks) {
  const auto earlier_checks = static_cast<double>(weeks / weeksBetweenChecks - 1);
  const double rate = project.residual - project.residual * earlier_checks * lossPerCheck;
  WeeklyEarnings record = earningsOf(world, project);
  record.residualsEarned = netOfDues(world, rate * project.payment);
  world.saveAllWeeklyEarnings.push_back(std::move(record));
}

}  // namespace

void payFilming(Game& game) {
  WorldState& world = game.world;
  const std::size_t before = world.saveAllWeeklyEarnings.size();
  for (const Audition& project : world.saveAllAuditionList) {
    if (project.funnelStage != funnel::wrapped) continue;
    if (project.weekToWork + 1 == world.weekNumberForTracking) {
      paySession(game, project);
    } else if (const std::int64_t weeks = weekOfCheck(world, project); weeks > 0) {
      payResidual(world, project, weeks);
    }
  }
  if (world.saveAllWeeklyEarnings.size() == before) return;
}

}  // namespace tb
