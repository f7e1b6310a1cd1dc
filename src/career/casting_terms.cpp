#include "career/casting_terms.h"

#include <algorithm>
#include <array>

#include "banks/names.h"
#include "career/colleagues.h"
#include "career/schedule.h"

namespace tb {

namespace {

constexpr std::array<std::string_view, 4> typesOfBackground = {"Extra", "Stand-In", "Double", "Background"};
constexpr std::array<std::string_view, 2> typesOfPrincipals = {"Support", "Lead"};

constexpr std::array<TvRole, 2> typesOfPrincipalForTV = {{
    {.label = "Co-Star", .minEpisodes = 1, .maxEpisodes = 1},
    {.label = "Recurring", .minEpisodes = 2, .maxEpisodes = 4},
}};

double dollars(std::int64_t amount) { return static_cast<double>(amount); }

bool isPrincipalRole(const CastingListing& listing) { return listing.isPrincipal == rolePart::principal; }

// Residual rate: 1 to 1.9 %, plus the agent's bonus.
double drawResidual(Game& game) {
  constexpr double least = 0.01;
  constexpr double most = 0.019;
  return RandomUnit(game.random, least, most) + game.world.agentResidualBonus;
}

// A small production pays better than a big one, because it needs the performer's name more.
void drawFeatureFilm(Game& game, CastingListing& listing, const TvRole&, std::int64_t maxBudget) {
  constexpr double bigBudget = 749'999;
  constexpr std::int64_t unit = 10'000;
  listing.budget = dollars(unit * RandomBetween(game.random, 10, std::max(maxBudget, boardBudget) / unit));
  const std::int64_t rate = listing.budget > bigBudget ? RandomBetween(game.random, 1150, 1560)
                                                       : RandomBetween(game.random, 2141, 2610);
  listing.payment = dollars(rate * RandomBetween(game.random, 1, 3) / 2);
  if (isPrincipalRole(listing)) listing.role = "Support";
  if (listing.isUnion == 1) listing.residual = drawResidual(game);
}

// Principal roles in a series are always union; background roles keep the drawn flag.
void drawSeries(Game& game, CastingListing& listing, const TvRole& tvRole, std::int64_t) {
  const std::int64_t size = RandomBetween(game.random, 10, 99);
  listing.budget = dollars(10'000 * size);
  if (!isPrincipalRole(listing)) {
    listing.numberOfEpisodesActed = 1;
    listing.payment = dollars(5 * size + 450);
    return;
  }
  const std::int64_t episodes = RandomBetween(game.random, tvRole.minEpisodes, tvRole.maxEpisodes);
  listing.role = tvRole.label;
  listing.isUnion = 1;
  listing.numberOfEpisodesActed = episodes;
  listing.payment = dollars(100 * episodes + 1082);
  listing.residual = drawResidual(game);
}

void drawUnionCommercial(Game& game, CastingListing& listing) {
  listing.budget = dollars(1'000 * RandomBetween(game.random, 25, 250));
  if (!isPrincipalRole(listing)) {
    listing.payment = dollars(270 * RandomBetween(game.random, 1, 5));
    return;
  }
  listing.payment = dollars(561 * RandomBetween(game.random, 2, 10));
  if (RandomRange(game.random, 2) == 1) listing.residual = drawResidual(game);
}

// A non-union commercial may pay a one-time buyout of 60 to 140 % of the fee.
void drawFreeCommercial(Game& game, CastingListing& listing) {
  const std::int64_t size = RandomBetween(game.random, 2, 50);
  const std::int64_t payment = isPrincipalRole(listing) ? 50 * size : std::min<std::int64_t>(10 * size, 250);
  listing.budget = dollars(1'000 * size);
  listing.payment = dollars(payment);
  const std::int64_t tenths = RandomBetween(game.random, 5, 15);
  if (tenths % 2 == 0) listing.buyout = dollars(tenths * payment / 10);
}

void drawCommercial(Game& game, CastingListing& listing, const TvRole&, std::int64_t) {
  if (listing.isUnion == 1) return drawUnionCommercial(game, listing);
  drawFreeCommercial(game, listing);
}

void drawStudentFilm(Game& game, CastingListing& listing, const TvRole&, std::int64_t) {
  const std::int64_t size = RandomBetween(game.random, 2, 50);
  listing.isUnion = 0;
  listing.budget = dollars(100 * size);
  listing.payment = isPrincipalRole(listing) ? dollars(10 * size) : 0;
  listing.role = drawRole(game, listing.isPrincipal);
}

void drawShortFilm(Game& game, CastingListing& listing, const TvRole&, std::int64_t) {
  if (listing.isUnion == 1) {
    listing.budget = dollars(1'000 * RandomBetween(game.random, 75, 300));
    listing.payment = dollars(isPrincipalRole(listing) ? 216 * RandomBetween(game.random, 2, 20)
                                                       : 108 * RandomBetween(game.random, 1, 5));
    return;
  }
  const std::int64_t size = RandomBetween(game.random, 10, 100);
  listing.budget = dollars(1'000 * size);
  listing.payment = dollars((isPrincipalRole(listing) ? 50 : 10) * size);
}

// By filmType.
constexpr std::array termsByType = {drawFeatureFilm, drawSeries, drawCommercial, drawStudentFilm,
                                    drawShortFilm};

}  // namespace

void drawTerms(Game& game, CastingListing& listing, const TvRole& tvRole, std::int64_t maxBudget) {
  termsByType[static_cast<std::size_t>(listing.movie->type)](game, listing, tvRole, maxBudget);
  if (maxBudget > 0) listing.budget = std::min(listing.budget, dollars(maxBudget));
}

std::string drawRole(Game& game, std::int64_t isPrincipal) {
  const bool principal = isPrincipal == rolePart::principal;
  return std::string(principal ? RandomElement<std::string_view>(game.random, typesOfPrincipals)
                               : RandomElement<std::string_view>(game.random, typesOfBackground));
}

const TvRole& drawTvRole(Game& game) { return RandomElement<TvRole>(game.random, typesOfPrincipalForTV); }

std::int64_t drawUnionFlag(Game& game) {
  const bool flipped = RandomRange(game.random, 4) == 3;
  return flipped ? 1 - game.world.isSAG : game.world.isSAG;
}

void completeListing(Game& game, CastingListing& listing, const TvRole& tvRole, std::int64_t maxBudget) {
  listing.characterName = inventedName(game.random, game.world.isMale);
  drawTerms(game, listing, tvRole, maxBudget);
  listing.directorRating = drawDirectorRating(game);
  listing.directorName = inventedName(game.random);
  const Schedule schedule = drawSchedule(game);
  listing.weekAudition = schedule.weekAudition;
  listing.weekToWork = schedule.weekToWork;
}

}  // namespace tb
