#pragma once

// The cards of the RottenBanana page: critics who signed what they wrote, and people who bought a ticket.
// Made up whenever the page opens, never saved.

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
  std::string review;  // empty above 100 percent, where critics have no words
  double stars = 1;    // 1 to 4
  std::string newsOutlet;
  DateLabel date;  // of the release
};

// A card of the audience.
struct AudienceReview {
  std::string name;
  std::string review;
  DateLabel date;          // of a week since the release, within a year of it
  std::int64_t stars = 1;  // 1 to 5
};

// Up to five cards each, and no more than critics or viewers have rated the title. Scores in percent, as
// bananaScores() gives them.
[[nodiscard]] std::vector<Review> drawCriticCards(Game& game, const Film& film, double criticScore);
[[nodiscard]] std::vector<AudienceReview> drawAudienceCards(Game& game, const Film& film,
                                                            double audienceScore);

}  // namespace tb
