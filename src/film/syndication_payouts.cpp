#include "film/syndication_payouts.h"

#include <cmath>
#include <utility>

#include "banks/draw.h"
#include "banks/earnings_banks.h"
#include "core/calendar.h"
#include "core/guild_dues.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/stakes.h"

namespace tb {

namespace {

// --- The share of the price ---

void paySyndicatedEquity(Game& game, const Film& film, const Proceeds& proceeds) {
  const EquityPayout payout = equityShare(game.world, film, proceeds);
  const std::string amount = shortMoney(game.locale, payout.payOut);
  logLine(
      game.world, {NewsKind::payday, film.filmId, payout.payOut},
      film.isPrincipal == rolePart::ownProduction
          ? "You received " + amount + " in syndication earnings for directing and producing " + film.title
          : "You received a " + amount + " payout for your investment in " + film.title + "'s syndication.");
  recordPayout(game, payout);
}

void payRoyalty(Game& game, const Film& film, const Proceeds& proceeds, const NetworkDeal& deal) {
  RoyaltyPayout payout = royaltyShare(game.world, film, proceeds, game.world.agentCommission);
  payout.syndicationYears = deal.years;
  payout.syndicationName = deal.network;
  const std::string royalty = shortMoney(game.locale, royaltyOn(film, proceeds.gross));
  logLine(game.world, {NewsKind::payday, film.filmId, payout.payout},
          "You received a royalty of " + royalty + " for " + film.title + "'s syndication.");
  recordPayout(game, std::move(payout));
}

// --- Residuals ---

// Residuals fall by a tenth per full year since the release, from the second year on. A rate above 0 stays
// above 0.
double agedRate(double rate, std::int64_t weeksSinceRelease) {
  constexpr std::int64_t firstWeekOfLoss = 53;
  constexpr double rateKeptPerYear = 0.9;
  if (weeksSinceRelease < firstWeekOfLoss) return rate;
  return rate * std::pow(rateKeptPerYear, weeksSinceRelease / weeksPerYear);
}

// Commission is due only on roles from the agent.
double chargeCommission(Game& game, const Syndication& title, double gross) {
  if (title.sourceId <= 0 || game.world.agentCommission <= 0) return 0;
  const double commission = gross * game.world.agentCommission;
  creditAgent(game, commission);
  return commission;
}

}  // namespace

void paySyndicationShares(Game& game, const Film& film, const NetworkDeal& deal) {
  const Proceeds proceeds = {.gross = static_cast<double>(deal.price),
                             .typeOfPayment = payoutSource::syndication,
                             .weekNumberForTracking = game.world.weekNumberForTracking};
  if (film.equityPercentage > 0) paySyndicatedEquity(game, film, proceeds);
  if (film.royaltyRate > 0) payRoyalty(game, film, proceeds, deal);
}

void paySyndicationResidual(Game& game, const Syndication& title) {
  if (title.residualRate <= 0) return;
  WorldState& world = game.world;
  const double rate = agedRate(title.residualRate, world.weekNumberForTracking - title.filmReleased);
  const double gross = rate * title.payment;
  // Everyone owes dues on residuals, also non-members.
  const double net = gross - chargeGuildDues(world, gross) - chargeCommission(game, title, gross);
  feedLine(world, {NewsKind::payday, title.filmId, net},
           fill(drawFreshRow(game, bank::residualPaidBank),
                {{"title", title.filmName}, {"amount", shortMoney(game.locale, net)}}));
  world.saveAllWeeklyEarnings.push_back({.filmId = title.filmId,
                                         .filmTitle = title.filmName,
                                         .filmType = filmType::feature,  // also for series
                                         .residualsEarned = net,
                                         .yearNumber = world.yearNumber,
                                         .weekNumberForTracking = world.weekNumberForTracking});
}

}  // namespace tb
