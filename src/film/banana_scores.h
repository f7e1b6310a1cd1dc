#pragma once

// The RottenBanana percentages of critics and audience, adjusted by the first letter of the title, and their
// badges. Computed from the saved scores.

#include <cstdint>
#include <string>
#include <string_view>

#include "core/game.h"

namespace tb {

// The factors for the two percentages by the title's first letter, 0.82 to 1.18; 1 when it is not A to Z.
[[nodiscard]] double criticNudge(std::string_view title);
[[nodiscard]] double audienceNudge(std::string_view title);

struct BananaScores {
  double critic = 0;    // percent; exceeds 100 for a few titles, on purpose
  double audience = 0;  // percent, up to 100
  std::string_view criticBadge;
  std::string_view audienceBadge;
};

[[nodiscard]] BananaScores bananaScores(const Film& film);

// The whole percent of a score, for display and lookup.
[[nodiscard]] std::int64_t wholePercent(double score);

// Draws the consensus text for a critics' score.
[[nodiscard]] std::string drawConsensus(Game& game, const Film& film, double criticScore);

// "12 Reviews"; "10,000+ Reviews" for an audience of more than 10,000.
[[nodiscard]] std::string criticCount(const Locale& locale, const Film& film);
[[nodiscard]] std::string audienceCount(const Locale& locale, const Film& film);

}  // namespace tb
