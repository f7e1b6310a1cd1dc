#include "career/agent_bands.h"

#include "core/bands.h"

namespace tb {

namespace {

constexpr std::array<AgentBand, 8> agentBands = {{
    {.from = 21,
     .upTo = 30,
     .maxBudget = {.least = 1, .unit = 1'500'000},
     .commission = {.least = 35, .span = 6},
     .residualBonus = {0.15, 0.30},
     .fanBonus = {1.05, 1.10},
     .contractYears = {.least = 1},
     .penalty = {.least = 5, .span = 6, .unit = 1'000},
     .weekToSendAudition = {.least = 11},
     .leastRating = 5,
     .negotiationBonus = {.least = 1, .span = 2}},
    {.from = 31,
     .upTo = 40,
     .maxBudget = {.least = 1, .span = 3, .unit = 1'500'000},
     .commission = {.least = 30, .span = 6},
     .residualBonus = {0.25, 0.40},
     .fanBonus = {1.05, 1.15},
     .contractYears = {.least = 1, .span = 2},
     .penalty = {.least = 10, .span = 16, .unit = 1'000},
     .weekToSendAudition = {.least = 9, .span = 3},
     .leastRating = 10,
     .negotiationBonus = {.least = 1, .span = 3}},
    {.from = 41,
     .upTo = 50,
     .maxBudget = {.least = 2, .span = 4, .unit = 2'000'000},
     .commission = {.least = 25, .span = 6},
     .residualBonus = {0.40, 0.55},
     .fanBonus = {1.10, 1.20},
     .contractYears = {.least = 1, .span = 3},
     .penalty = {.least = 25, .span = 26, .unit = 1'000},
     .weekToSendAudition = {.least = 8, .span = 3},
     .leastRating = 15,
     .negotiationBonus = {.least = 2, .span = 4}},
    {.from = 51,
     .upTo = 60,
     .maxBudget = {.least = 3, .span = 5, .unit = 2'500'000},
     .commission = {.least = 20, .span = 6},
     .residualBonus = {0.55, 0.70},
     .fanBonus = {1.10, 1.25},
     .contractYears = {.least = 2, .span = 2},
     .penalty = {.least = 50, .span = 51, .unit = 1'000},
     .weekToSendAudition = {.least = 7, .span = 3},
     .leastRating = 20,
     .negotiationBonus = {.least = 3, .span = 5}},
    {.from = 61,
     .upTo = 70,
     .maxBudget = {.least = 4, .span = 6, .unit = 3'000'000},
     .commission = {.least = 15, .span = 6},
     .residualBonus = {0.75, 0.90},
     .fanBonus = {1.20, 1.30},
     .contractYears = {.least = 2, .span = 3},
     .penalty = {.least = 100, .span = 151, .unit = 1'000},
     .weekToSendAudition = {.least = 6, .span = 3},
     .leastRating = 25,
     .negotiationBonus = {.least = 5, .span = 6}},
    {.from = 71,
     .upTo = 80,
     .maxBudget = {.least = 5, .span = 11, .unit = 5'000'000},
     .commission = {.least = 12, .span = 4},
     .residualBonus = {0.95, 1.10},
     .fanBonus = {1.20, 1.40},
     .contractYears = {.least = 3, .span = 3},
     .penalty = {.least = 250, .span = 251, .unit = 1'000},
     .weekToSendAudition = {.least = 5, .span = 3},
     .leastRating = 30,
     .negotiationBonus = {.least = 7, .span = 9}},
    {.from = 81,
     .upTo = 90,
     .maxBudget = {.least = 10, .span = 21, .unit = 5'000'000},
     .commission = {.least = 10, .span = 3},
     .residualBonus = {1.20, 1.35},
     .fanBonus = {1.40, 1.50},
     .contractYears = {.least = 4, .span = 4},
     .penalty = {.least = 500, .span = 501, .unit = 1'000},
     .weekToSendAudition = {.least = 4, .span = 3},
     .leastRating = 40,
     .negotiationBonus = {.least = 10, .span = 11}},
    {.from = 91,
     .upTo = 200,
     .maxBudget = {.least = 20, .span = 81, .unit = 10'000'000},
     .commission = {.least = 8, .span = 3},
     .residualBonus = {1.45, 1.60},
     .fanBonus = {1.50, 1.75},
     .contractYears = {.least = 5, .span = 6},
     .penalty = {.least = 1'000, .span = 1'501, .unit = 1'000},
     .weekToSendAudition = {.least = 3, .span = 3},
     .leastRating = 50,
     .negotiationBonus = {.least = 15, .span = 11}},
}};

// Signing such an agent even costs all fan gains: a performer below every band should wait for a better one.
constexpr AgentBand belowAllBands = {.residualBonus = {0.25, 0.25}, .weekToSendAudition = {.least = 12}};

struct RoyaltyBand {
  std::int64_t from;
  std::int64_t upTo;
  Interval bonus;
};
constexpr std::array<RoyaltyBand, 4> royaltyBands = {{
    {.from = 61, .upTo = 70, .bonus = {1.0, 1.2}},
    {.from = 71, .upTo = 80, .bonus = {1.2, 1.4}},
    {.from = 81, .upTo = 90, .bonus = {1.4, 1.6}},
    {.from = 91, .upTo = 200, .bonus = {1.6, 1.8}},
}};

}  // namespace

const AgentBand& agentBandFor(std::int64_t talent) {
  const AgentBand* const band = bandOf(agentBands, talent);
  return band == nullptr ? belowAllBands : *band;
}

std::int64_t drawSpread(Game& game, const Spread& spread) {
  const std::int64_t drawn = spread.span > 1 ? RandomRange(game.random, spread.span) : 0;
  return (spread.least + drawn) * spread.unit;
}

double drawInterval(Game& game, const Interval& interval) {
  if (interval.least == interval.most) return interval.most;
  return RandomUnit(game.random, interval.least, interval.most);
}

double drawRoyaltyBonus(Game& game, std::int64_t rating) {
  const RoyaltyBand* const band = bandOf(royaltyBands, rating);
  return band == nullptr ? 0 : drawInterval(game, band->bonus);
}

}  // namespace tb
