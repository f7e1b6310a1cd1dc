#include "wealth/filming_pay.h"

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "core/guild_dues.h"
#include "core/log.h"
#include "core/number_style.h"

namespace tb {

namespace {

// Residuals of a commercial: every fourth week on the air for just under a year, each 2 % of the rate lower
// than the previous one.
constexpr std::int64_t weeksBetweenResiduals = 4;
constexpr std::int64_t lastResidualWeek = 48;
constexpr double lossPerResidual = 0.02;

// Dues are deducted twice but counted once toward the lifetime total (6 % and 3 %), on purpose.
double netOfDues(WorldState& world, double gross) { return gross - 2 * chargeGuildDues(world, gross); }

WeeklyEarnings earningsOf(const WorldState& world, const Audition& project) {
  return {.filmId = project.filmId,
          .filmTitle = project.title,
          .filmType = project.typeOfFilm,
          .yearNumber = world.yearNumber,
          .weekNumberForTracking = world.weekNumberForTracking};
}

void logPayday(Game& game, const Audition& project, double earned) {
  logActivity(game.world, fill(drawFreshRow(game, bank::payday),
                               {{"title", project.title}, {"amount", shortMoney(game.locale, earned)}}));
}

void paySession(Game& game, const Audition& project) {
  WorldState& world = game.world;
  WeeklyEarnings record = earningsOf(world, project);
  record.sessionEarned = world.isSAG == 1 ? netOfDues(world, project.payment) : project.payment;
  record.buyoutEarned = project.buyout;
  if (project.isPrincipal == rolePart::ownProduction) {
    logPayday(game, project, record.sessionEarned + record.buyoutEarned);
  }
  world.saveAllWeeklyEarnings.push_back(std::move(record));
}

// The number of weeks on the air if a residual is due; 0 in other weeks.
std::int64_t weeksAtResidual(const WorldState& world, const Audition& project) {
  if (project.typeOfFilm != filmType::commercial || project.residual <= 0) return 0;
  const std::int64_t weeks = world.weekNumberForTracking - project.weekReleased;
  const bool due = weeks > 0 && weeks <= lastResidualWeek && weeks % weeksBetweenResiduals == 0;
  return due ? weeks : 0;
}

// Unlike session fees, residuals cost dues for members and non-members alike.
void payResidual(WorldState& world, const Audition& project, std::int64_t weeks) {
  const auto earlierResiduals = static_cast<double>(weeks / weeksBetweenResiduals - 1);
  const double rate = project.residual - project.residual * earlierResiduals * lossPerResidual;
  WeeklyEarnings record = earningsOf(world, project);
  record.residualsEarned = netOfDues(world, rate * project.payment);
  world.saveAllWeeklyEarnings.push_back(std::move(record));
}

}  // namespace

void payFilming(Game& game) {
  WorldState& world = game.world;
  for (const Audition& project : world.saveAllAuditionList) {
    if (project.funnelStage != funnel::wrapped) continue;
    if (project.weekToWork + 1 == world.weekNumberForTracking) {
      paySession(game, project);
    } else if (const std::int64_t weeks = weeksAtResidual(world, project); weeks > 0) {
      payResidual(world, project, weeks);
    }
  }
}

}  // namespace tb
