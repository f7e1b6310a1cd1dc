#pragma once

// What agents bring, by the talent of the performer they write to.

#include <cstdint>

#include "core/game.h"

namespace tb {

// (least + RandomRange(span)) · unit; nothing is drawn when the span is 1.
struct Spread {
  std::int64_t least = 0;
  std::int64_t span = 1;
  std::int64_t unit = 1;
};

struct Interval {
  double least = 0;
  double most = 0;
};

struct AgentBand {
  std::int64_t from = 0;  // overallTalent(), inclusive
  std::int64_t upTo = 0;
  Spread maxBudget;   // dollars
  Spread commission;  // percent
  Interval residualBonus;
  Interval fanBonus;
  Spread contractYears;
  Spread penalty;  // dollars
  Spread weekToSendAudition;
  std::int64_t leastRating = 0;
  Spread negotiationBonus;
};

// The band of a performer with this talent. Up to 20 points, agents have nothing to offer: the last row.
[[nodiscard]] const AgentBand& agentBandFor(std::int64_t talent);

[[nodiscard]] std::int64_t drawSpread(Game& game, const Spread& spread);
[[nodiscard]] double drawInterval(Game& game, const Interval& interval);

// Draws the bonus on royalties of an agent with this rating, in percentage points; 0 up to a rating of 60.
[[nodiscard]] double drawRoyaltyBonus(Game& game, std::int64_t rating);

}  // namespace tb
