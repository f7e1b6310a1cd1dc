#include "film/box_office_payouts.h"

#include "banks/banks.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/save.h"
#include "core/signed_agent.h"

namespace tb {

namespace {

constexpr std::int64_t payoutIdOffset = 100;  // a payout's id above its film's

// The marks of an own production in its equity record.
constexpr std::int64_t ownProductionSource = 3;
constexpr double ownProductionManager = -1;

void announceEquity(Game& game, const Film& film, double payout, double gross) {
  const std::string amount = shortMoney(game.locale, payout);
  if (film.isPrincipal == rolePart::ownProduction) {
    logLine(game.world,
            "You received " + amount + " in box office earnings for directing and producing " + film.title);
  } else if (gross > film.budget) {
    // A loss goes unmentioned: the record alone tells of it.
    logLine(game.world,
            fill(drawRow(game.random, Bank::equityPaidBank), {{"title", film.title}, {"amount", amount}}));
  }
}

void payEquity(Game& game, const Film& film, double gross) {
  const bool own = film.isPrincipal == rolePart::ownProduction;
  const double payout = gross * film.equityPercentage / 100;
  announceEquity(game, film, payout, gross);
  game.world.saveAllEquityPayouts.push_back({.id = film.filmId + payoutIdOffset,
                                             .filmId = film.filmId,
                                             .yearNumber = game.world.yearNumber,
                                             .weekNumberForTracking = game.world.weekNumberForTracking + 1,
                                             .payOut = payout,
                                             .typeOfPayment = payoutSource::boxOffice,
                                             .sourceId = own ? ownProductionSource : 0,
                                             .managerEarnings = own ? ownProductionManager : 0});
  save<&WorldState::saveAllEquityPayouts>(game);
}

void payRoyalty(Game& game, const Film& film, double gross) {
  WorldState& world = game.world;
  const double royalty = gross * film.royaltyRate / 100;
  RoyaltyPayout record{.id = film.filmId + payoutIdOffset,
                       .filmId = film.filmId,
                       .title = film.title,
                       .yearNumber = world.yearNumber,
                       .weekNumberForTracking = world.weekNumberForTracking + 1,
                       .typeOfPayment = payoutSource::boxOffice,
                       .totalDealGross = gross};
  if (const auto agent = signedAgent(world)) {
    record.sourceId = world.saveAllTalentAgents[*agent].id;
    record.agentEarnings = royalty * world.saveAllTalentAgents[*agent].commissionPercentage;
  }
  record.payout = royalty - record.agentEarnings;
  world.saveAllRoyaltyPayouts.push_back(std::move(record));
  logLine(world,
          fill(drawRow(game.random, Bank::royaltyPaidBank), {{"title", film.title},
                                                             {"amount", shortMoney(game.locale, royalty)},
                                                             {"gross", shortMoney(game.locale, gross)}}));
  save<&WorldState::saveAllRoyaltyPayouts>(game);
}

}  // namespace

void payStakes(Game& game, const Film& film, double gross) {
  if (film.equityPercentage > 0) payEquity(game, film, gross);
  if (film.royaltyRate > 0) payRoyalty(game, film, gross);
}

}  // namespace tb
