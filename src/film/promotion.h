#pragma once

// The one interview that sells a title before its release.

#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t promotionEnergy = 25;  // charged by the button that opens the interview

// An interview as it is drawn when its screen opens.
struct Interview {
  std::string talkShow;
  std::string question;
  std::int64_t totalHype = 0;  // what it will add to the project's hype, by `totalFans`
};

// For the project at `selectedAuditionIndex`.
[[nodiscard]] Interview openInterview(Game& game, const Audition& project);

// A ready answer for a performer who has none.
[[nodiscard]] std::string suggestedAnswer(Game& game);

// Gives the interview: the answer is posted and kept as a quote, the hype rises, and the project can't be
// promoted again. Refused, and nothing changes, when the answer is blank or the project was promoted before.
// Writes `saveAllAuditionList`, `saveAllQuotes`, `saveAllChirpList` and `chirpId`.
[[nodiscard]] Refusal promoteFilm(Game& game, std::size_t auditionIndex, const Interview& interview,
                                  const std::string& answer);

}  // namespace tb
