#pragma once

// The RottenBanana percentages: what critics and audiences make of a title, bent by the first letter of its
// name, with the badge that each earns. Derived from the frozen scores whenever the page opens.

#include <cstdint>
#include <string>
#include <string_view>

#include "core/game.h"

namespace tb {

// The factors by which the first letter of a title raises or lowers its two percentages, 0.82 to 1.18. A
// title that does not start with a letter from A to Z is left alone: 1.
[[nodiscard]] double criticNudge(std::string_view title);
[[nodiscard]] double audienceNudge(std::string_view title);

struct BananaScores {
  double critic = 0;    // percent; above 100 for a few titles, and shown so
  double audience = 0;  // percent, up to 100
  std::string_view criticBadge;
  std::string_view audienceBadge;
};

[[nodiscard]] BananaScores bananaScores(const Film& film);

// A score as it is shown and looked up: its whole percent.
[[nodiscard]] std::int64_t wholePercent(double score);

// What the critics agree on, by the critics' score.
[[nodiscard]] std::string drawConsensus(Game& game, const Film& film, double criticScore);

// "12 Reviews"; an audience beyond 10,000 is "10,000+ Reviews".
[[nodiscard]] std::string criticCount(const Locale& locale, const Film& film);
[[nodiscard]] std::string audienceCount(const Locale& locale, const Film& film);

}  // namespace tb
