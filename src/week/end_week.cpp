#include "week/end_week.h"

#include <utility>

#include "career/agent_auditions.h"
#include "career/agent_offer.h"
#include "career/audition_cleanup.h"
#include "career/audition_week.h"
#include "career/classes.h"
#include "career/email_offers.h"
#include "career/job_contract.h"
#include "career/renewals.h"
#include "core/ended_week.h"
#include "film/awards.h"
#include "film/box_office.h"
#include "film/metflix_chart.h"
#include "film/popularity_drift.h"
#include "film/syndication_deals.h"
#include "film/syndication_offers.h"
#include "life/energy.h"
#include "life/public_relations.h"
#include "life/relationship_week.h"
#include "life/week_events.h"
#include "social/cameo.h"
#include "social/fame.h"
#include "social/fans.h"
#include "social/star_meter.h"
#include "wealth/best_figures.h"
#include "wealth/market_index.h"
#include "week/review_prompt.h"

namespace tb {

namespace {

constexpr std::int64_t weekAfterTheLast = 53;
constexpr std::int64_t awardsWeek = 4;  // the week after the Cademy nominations

void startNewWeek(WorldState& world) {
  world.lastWeekTrackerCount = std::ssize(world.activityTracker);
  world.weekBalanceItems.clear();
  world.weekNetIncome = 0;
  world.randomEventShownThisWeek = 0;
}

void advanceClock(Game& game) {
  game.world.weekNumber += 1;
  game.world.weekNumberForTracking += 1;
  game.world.saveLastWeekTrackerCount = game.world.lastWeekTrackerCount;
}

void rollYearOver(WorldState& world) {
  world.yearNumber += 1;
  world.saveLastYTDPaycheck = world.yearToDatePaycheck;
  world.yearToDatePaycheck = 0;
  world.weekNumber = 1;
  world.ageCount += 1;
  ageEnergyCeiling(world);
}

// Submits the best figures to the leaderboard a few times a year. The flag that prevents repeats is in memory
// only.
void submitBestFigures(Game& game, HubRefresh reason) {
  WorldState& world = game.world;
  if (world.weekNumber < weekAfterTheLast && world.weekNumber % 10 == 0) world.leaderboardSent = false;
  if (reason == HubRefresh::worldChanged && !world.leaderboardSent && world.weekNumber % 16 == 0) {
    world.leaderboardSent = true;
    updateBestFigures(game);
  }
}

}  // namespace

void endWeek(Game& game) {
  startNewWeek(game.world);
  resolveAuditionsForWeek(game);
  agentOfferStep(game);
  investorOfferStep(game);
  backendOfferStep(game);
  franchiseOfferStep(game);
  driftFans(game);
  featureNominations(game);
  seriesNominations(game);
  swingFans(game);
  refillEnergy(game);
  advanceJobContract(game);
  advanceClock(game);
}

WeekSummary openSummary(Game& game) {
  game.world.releaseOffered = false;
  const EndedWeek ended = endedWeek(game.world);
  WeekSummary summary{.week = ended.week, .year = ended.year};
  drawSyndicationBids(game);
  advanceSyndicationDeals(game);
  agentAuditionStep(game);
  driftPopularity(game);
  renewSeries(game);
  renewSaga(game);
  for (const WeekEvent event : drawWeekEvents(game)) summary.events.push_back({event});
  advanceFilmChart(game);
  advanceSeriesChart(game);
  closeBoxOffice(game);
  advanceClasses(game);
  rankStar(game);
  summary.separation = relationshipWeekStep(game);
  summary.offersAwards = game.world.weekNumber == awardsWeek && isNominatedThisYear(game.world);
  cameoWeekStep(game);
  summary.balance = balanceWeek(game);
  showFeed(game, summary);
  summary.offersRelease = std::exchange(game.world.releaseOffered, false);
  cleanUpAuditions(game);
  return summary;
}

SummaryCalls showSummary(Game& game) {
  SummaryCalls calls;
  calls.forReview = isReviewPromptDue(game.world);
  calls.separation = relationshipWeekStep(game);
  calls.forRandomEvent = randomEventStep(game);
  return calls;
}

void closeSummary(Game& game) {
  recordWeekNet(game);
  closeActivityLog(game);
  moveRealEstateIndex(game);
  moveCardIndex(game);
}

void refreshHub(Game& game, HubRefresh reason) {
  if (game.world.weekNumber >= weekAfterTheLast) rollYearOver(game.world);
  submitBestFigures(game, reason);
  if (game.world.enterPlayerDetails == 0) return;
  openCharts(game);
  updateFame(game);
}

}  // namespace tb
