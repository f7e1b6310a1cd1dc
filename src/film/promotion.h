#pragma once

// The promotion interview of a title, once before its release.

#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t promotionEnergy = 25;  // charged by the button that opens the interview

// An interview, drawn when its screen opens.
struct Interview {
  std::string talkShow;
  std::string question;
  std::int64_t totalHype = 0;  // added to the project's hype; depends on `totalFans`
};

// Draws an interview about the project.
[[nodiscard]] Interview openInterview(Game& game, const Audition& project);

// Draws a suggested answer.
[[nodiscard]] std::string suggestedAnswer(Game& game);

// Gives the interview: posts the answer, saves it as a quote, raises the hype and marks the project as
// promoted. Refused, with nothing changed, when the answer is blank or the project was already promoted. Does
// nothing when the project does not exist.
[[nodiscard]] Refusal promoteFilm(Game& game, std::int64_t filmId, const Interview& interview,
                                  const std::string& answer);

}  // namespace tb
