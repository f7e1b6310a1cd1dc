#pragma once

// The review cards of the RottenBanana page, by critics and by the audience. Drawn whenever the page opens,
// never saved.

#include <cstdint>
#include <string>
#include <vector>

#include "core/calendar.h"
#include "core/game.h"

namespace tb {

// A critic's card.
struct Review {
  std::string image;  // portrait
  std::string name;
  std::string review;  // empty when the score is above 100 percent
  double stars = 1;    // 1 to 4
  std::string newsOutlet;
  DateLabel date;  // of the release
};

// An audience member's card.
struct AudienceReview {
  std::string name;
  std::string review;
  DateLabel date;          // between the release and now, at most a year after the release
  std::int64_t stars = 1;  // 1 to 5
};

// Up to five cards each, and at most as many as there are ratings. Scores are in percent, from
// bananaScores().
[[nodiscard]] std::vector<Review> drawCriticCards(Game& game, const Film& film, double criticScore);
[[nodiscard]] std::vector<AudienceReview> drawAudienceCards(Game& game, const Film& film,
                                                            double audienceScore);

}  // namespace tb
