#include "film/box_office_payouts.h"

#include <utility>

#include "banks/draw.h"
#include "banks/earnings_banks.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/signed_agent.h"
#include "film/stakes.h"

namespace tb {

namespace {

// Values in the equity record of the performer's own production.
constexpr std::int64_t ownProductionSource = 3;
constexpr double ownProductionManager = -1;

void announceEquity(Game& game, const Film& film, double payout, double gross) {
  const News about = {NewsKind::payday, film.filmId, payout};
  const std::string amount = shortMoney(game.locale, payout);
  if (film.isPrincipal == rolePart::ownProduction) {
    logLine(game.world, about,
            "You received " + amount + " in box office earnings for directing and producing " + film.title);
  } else if (gross > film.budget) {
    // A loss is recorded but not logged.
    logLine(game.world, about,
            fill(drawFreshRow(game, bank::equityPaidBank), {{"title", film.title}, {"amount", amount}}));
  }
}

Proceeds boxOfficeOf(const WorldState& world, double gross) {
  return {.gross = gross,
          .typeOfPayment = payoutSource::boxOffice,
          .weekNumberForTracking = world.weekNumberForTracking + 1};
}

void payEquity(Game& game, const Film& film, const Proceeds& proceeds) {
  EquityPayout payout = equityShare(game.world, film, proceeds);
  if (film.isPrincipal == rolePart::ownProduction) {
    payout.sourceId = ownProductionSource;
    payout.managerEarnings = ownProductionManager;
  }
  announceEquity(game, film, payout.payOut, proceeds.gross);
  recordPayout(game, payout);
}

double commissionOf(const WorldState& world) {
  const auto agent = signedAgent(world);
  return agent ? world.saveAllTalentAgents[*agent].commissionPercentage : 0;
}

void payRoyalty(Game& game, const Film& film, const Proceeds& proceeds) {
  RoyaltyPayout payout = royaltyShare(game.world, film, proceeds, commissionOf(game.world));
  const std::string royalty = shortMoney(game.locale, royaltyOn(film, proceeds.gross));
  logLine(
      game.world, {NewsKind::payday, film.filmId, payout.payout},
      fill(drawFreshRow(game, bank::royaltyPaidBank),
           {{"title", film.title}, {"amount", royalty}, {"gross", shortMoney(game.locale, proceeds.gross)}}));
  recordPayout(game, std::move(payout));
}

}  // namespace

void payStakes(Game& game, const Film& film, double gross) {
  const Proceeds proceeds = boxOfficeOf(game.world, gross);
  if (film.equityPercentage > 0) payEquity(game, film, proceeds);
  if (film.royaltyRate > 0) payRoyalty(game, film, proceeds);
}

}  // namespace tb
