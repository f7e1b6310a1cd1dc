#pragma once

// Negotiation of a returning season's pay, or of a sequel's: a single attempt. Each step of the ask lowers
// the chance of success.

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t renewalNegotiationEnergy = 75;
inline constexpr std::int64_t maxRenewalSteps = 10;

// A negotiation before its attempt. Amounts are dollars, or percent of the gross when `isRoyalty` is set.
struct RenewalTalks {
  std::int64_t filmId = 0;
  bool isRoyalty = false;         // the role has a stake, so the ask is about its percentage
  double total = 0;               // the ask
  double increase = 0;            // of the ask per step: a tenth of what is offered
  std::int64_t paymentCount = 0;  // steps, 0 to maxRenewalSteps
  double chanceOfNegotiation = 100;
  std::int64_t chanceOfNegotiationChange = 10;  // per step
  std::int64_t negotiationBonus = 0;            // of the signed agent

  // What is offered without negotiation.
  [[nodiscard]] double offered() const { return total - increase * static_cast<double>(paymentCount); }
};

// True for a second or later season or film that wraps in eleven weeks or more and was not negotiated yet.
[[nodiscard]] bool isNegotiationOffered(const WorldState& world, const Audition& project);

// Notes the project in `selectedAuditionIndex` for the negotiation's screen; does nothing when it is gone.
void openRenewalNegotiation(Game& game, std::int64_t filmId);

// Begins the negotiation. A season that drew less than the one before lowers the chance and its change per
// step by the same factor; a film is compared by its gross.
[[nodiscard]] RenewalTalks beginRenewalTalks(const WorldState& world, const Audition& project);

// Steps of the ask; they do nothing beyond the first and the last one.
void raiseAsk(RenewalTalks& talks);
void lowerAsk(RenewalTalks& talks);

// The season or film before the project's own; null when there is none.
[[nodiscard]] const Audition* previousInstalment(const WorldState& world, const Audition& project);

// The figure of the season or film that ended last by that of the one before; 1 when there is none before.
[[nodiscard]] double successRatio(const WorldState& world, const Audition& project);

// Why there can be no attempt now: not enough energy.
[[nodiscard]] Refusal renewalRefusal(const WorldState& world);

struct RenewalAnswer {
  Notice notice;
  bool isFinal = false;  // the attempt was made
};

// The attempt. Without enough energy nothing changes. The project must be in the list.
[[nodiscard]] RenewalAnswer negotiateRenewal(Game& game, const RenewalTalks& talks);

}  // namespace tb
