#include "film/stakes.h"

#include <utility>

#include "core/signed_agent.h"

namespace tb {

namespace {

constexpr std::int64_t payoutIdOffset = 100;  // a payout's id minus its film's id

}  // namespace

double royaltyOn(const Film& film, double gross) { return gross * film.royaltyRate / 100; }

EquityPayout equityShare(const WorldState& world, const Film& film, const Proceeds& proceeds) {
  return {.id = film.filmId + payoutIdOffset,
          .filmId = film.filmId,
          .yearNumber = world.yearNumber,
          .weekNumberForTracking = proceeds.weekNumberForTracking,
          .payOut = proceeds.gross * film.equityPercentage / 100,
          .typeOfPayment = proceeds.typeOfPayment};
}

RoyaltyPayout royaltyShare(const WorldState& world, const Film& film, const Proceeds& proceeds,
                           double commission) {
  const double royalty = royaltyOn(film, proceeds.gross);
  const auto agent = signedAgent(world);
  return {.id = film.filmId + payoutIdOffset,
          .filmId = film.filmId,
          .title = film.title,
          .yearNumber = world.yearNumber,
          .weekNumberForTracking = proceeds.weekNumberForTracking,
          .payout = royalty - royalty * commission,
          .typeOfPayment = proceeds.typeOfPayment,
          .sourceId = agent ? world.saveAllTalentAgents[*agent].id : 0,
          .agentEarnings = royalty * commission,
          .totalDealGross = proceeds.gross};
}

void recordPayout(Game& game, EquityPayout payout) { game.world.saveAllEquityPayouts.push_back(payout); }

void recordPayout(Game& game, RoyaltyPayout payout) {
  creditAgent(game, payout.agentEarnings);
  game.world.saveAllRoyaltyPayouts.push_back(std::move(payout));
}

void creditAgent(Game& game, double commission) {
  const auto agent = signedAgent(game.world);
  if (!agent) return;
  game.world.saveAllTalentAgents.edit(*agent).totalAgentEarnings += commission;
}

}  // namespace tb
