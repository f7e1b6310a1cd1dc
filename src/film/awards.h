#pragma once

// The Cademy Awards for films and the Emme Awards for series: last year's acclaimed titles of the player. The
// outcome of a nomination is drawn with it; the ceremony only shows it.

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "core/game.h"

namespace tb {

inline constexpr std::int64_t cademyWeek = 3;  // weekNumber of the nominations
inline constexpr std::int64_t emmeWeek = 7;

enum class Prize : std::uint8_t { lead, support, directing, work, writing };

// A category of an award show. The row's index is Award::awardOptionId.
struct AwardOption {
  std::int64_t typeOfFilm;  // tb::filmType
  std::string_view awardShow;
  std::string_view awardName;
  std::int64_t gender;  // of the nominee: 0 male, 1 female, -1 any
  std::string_view roleType;
  Prize prize;
};

[[nodiscard]] std::span<const AwardOption> awardOptions();

[[nodiscard]] bool isActing(const AwardOption& option);

// Draws the nominations for last year's films in `cademyWeek`, and for last year's drama series in
// `emmeWeek`. They do nothing in other weeks, or without a title with a metascore of at least 85.
void featureNominations(Game& game);
void seriesNominations(Game& game);

// Whether `saveAllMovieAwards` has a nomination of this year.
[[nodiscard]] bool isNominatedThisYear(const WorldState& world);

// Indexes in `saveAllMovieAwards` of the nominations that came out in the week that ended.
[[nodiscard]] std::vector<std::size_t> newNominations(const WorldState& world);

// Whether the winner is known to the player: in later years, and after openEnvelope().
[[nodiscard]] bool isRevealed(const WorldState& world, const Award& award);

// Reveals the winner, until the game is closed. The id is Award::id.
void openEnvelope(Game& game, std::int64_t id);

}  // namespace tb
