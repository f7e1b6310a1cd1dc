#pragma once

// The player ends the relationship. The partner's own departure is in life/separation.h.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t breakUpEnergy = 25;  // points; also for a divorce

[[nodiscard]] Refusal breakUpRefusal(const WorldState& world);

// The question before a break-up, or before a divorce when the two are married. Compute the net worth before.
[[nodiscard]] Notice breakUpQuestion(const Game& game);

// The partner's share in a divorce that the player asks for: half of the net worth, nothing with a prenup.
[[nodiscard]] double divorceShare(const WorldState& world);

// Ends a relationship below marriage, and returns what the player is told. There must be a partner and the
// energy.
[[nodiscard]] Notice breakUp(Game& game);

// Ends a marriage and pays `amount`; cash can fall below 0.
[[nodiscard]] Notice divorce(Game& game, double amount);

}  // namespace tb
