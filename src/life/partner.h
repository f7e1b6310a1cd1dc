#pragma once

// The player's partner, the relationship's meter and its history.

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"

namespace tb {

inline constexpr double fullMeter = 100;  // points, after an engagement or a wedding
inline constexpr double mostMeter = 105;  // points, the most that care can reach

// The index in `saveAllMatchesList` of the partner: the first match with whom the player is dating, engaged
// or married. Nothing for a single player.
[[nodiscard]] std::optional<std::size_t> partnerIndex(const WorldState& world);

// The partner; null for a single player.
[[nodiscard]] const Matches* currentPartner(const WorldState& world);

// Moves the partner's meter by `points`. It does not rise above 105, and the relationship ends when it is
// below 0 after a week. Does nothing for a single player.
void moveMeter(WorldState& world, double points);

// The meter as a whole number of points, 0 and up.
[[nodiscard]] std::int64_t shownMeter(const Matches& partner);

// Whether a child is on the way that will not come in the coming week.
[[nodiscard]] bool isPregnant(const Matches& partner);

// Weeks since the two became a couple.
[[nodiscard]] std::int64_t weeksTogether(const WorldState& world, const Matches& partner);

// A number of weeks in words: weeks below `monthsFrom`, then months of 4 weeks, years from 52 on.
[[nodiscard]] std::string spanWords(std::int64_t weeks, std::int64_t monthsFrom = 5);

// Adds a line to the history of the relationship, which keeps 31, newest first.
void tellPartners(WorldState& world, std::string line);

// A post by the partner's account, with the reach of a new couple's.
void postAsPartner(Game& game, const Matches& partner, std::string message);

}  // namespace tb
