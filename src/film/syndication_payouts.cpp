#include "film/syndication_payouts.h"

#include <cmath>
#include <utility>

#include "banks/draw.h"
#include "banks/earnings_banks.h"
#include "core/guild_dues.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/stakes.h"

namespace tb {

namespace {

// --- The share of the price ---

void payEquity(Game& game, const Film& film, const Proceeds& proceeds) {
  const EquityPayout payout = equityShare(game.world, film, proceeds);
  const std::string amount = shortMoney(game.locale, payout.payOut);
  logLine(
      game.world, {NewsKind::payday, film.filmId, payout.payOut},
      film.isPrincipal == rolePart::ownProduction
          ? "You received " + amount + " in syndication earnings for directing and producing " + film.title
          : "You received a " + amount + " payout for your investment in " + film.title + "'s syndication.");
  keepPayout(game, payout);
}

void payRoyalty(Game& game, const Film& film, const Proceeds& proceeds, const NetworkDeal& deal) {
  RoyaltyPayout payout = royaltyShare(game.world, film, proceeds, game.world.agentCommission);
  payout.syndicationYears = deal.years;
  payout.syndicationName = deal.network;
  const std::string royalty = shortMoney(game.locale, royaltyOn(film, proceeds.gross));
  logLine(game.world, {NewsKind::payday, film.filmId, payout.payout},
          "You received a royalty of " + royalty + " for " + film.title + "'s syndication.");
  keepPayout(game, std::move(payout));
}

// --- Residuals ---

// Residuals lose a tenth with every whole year since the release, from the second year on. What is above 0
// stays above 0, however old the title.
double agedRate(double rate, std::int64_t weeksSinceRelease) {
  constexpr std::int64_t firstWeekOfLoss = 53;
  constexpr std::int64_t weeksOfAYear = 52;
  constexpr double leftAfterAYear = 0.9;
  if (weeksSinceRelease < firstWeekOfLoss) return rate;
  return rate * std::pow(leftAfterAYear, weeksSinceRelease / weeksOfAYear);
}

// The agent lives on the roles that the agency brought; a role of the performer's own finding costs nothing.
double takeCommission(Game& game, const Syndication& title, double gross) {
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
  if (film.equityPercentage > 0) payEquity(game, film, proceeds);
  if (film.royaltyRate > 0) payRoyalty(game, film, proceeds, deal);
}

void paySyndicationResidual(Game& game, const Syndication& title) {
  if (title.residualRate <= 0) return;
  WorldState& world = game.world;
  const double rate = agedRate(title.residualRate, world.weekNumberForTracking - title.filmReleased);
  const double gross = rate * title.payment;
  // Dues are owed on residuals by everybody, member of the guild or not, and once.
  const double net = gross - takeGuildDues(world, gross) - takeCommission(game, title, gross);
  feedLine(world, {NewsKind::payday, title.filmId, net},
           fill(tellRow(game, bank::residualPaidBank),
                {{"title", title.filmName}, {"amount", shortMoney(game.locale, net)}}));
  world.saveAllWeeklyEarnings.push_back({.filmId = title.filmId,
                                         .filmTitle = title.filmName,
                                         .filmType = filmType::feature,  // of series, too
                                         .residualsEarned = net,
                                         .yearNumber = world.yearNumber,
                                         .weekNumberForTracking = world.weekNumberForTracking});
}

}  // namespace tb
