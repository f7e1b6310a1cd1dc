#pragma once

// The start of a career: the new-career form, the restart, and what every career has from its first moment.

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// The year in which every career begins.
inline constexpr Int firstYear = 2026;

// The contents of the form when it is confirmed. The age is not part of it: chooseAge() sets it at once.
struct NewCareerForm {
  String myName;
  String aboutDescription;
  Flag isMale = true;
  Image headshotImage;  // empty while none is chosen
  Flag hasNoWayBack = false;
};

// Sets the performer's age in years and the matching year of birth. If it is never called, the start values
// 18 and 2005 stay, which do not match.
void chooseAge(Game& game, Int age);

// Starts a career: sets name, biography, gender, picture and year, sends the welcome e-mails, and marks the
// form as done. Refused, with nothing changed, while the name is empty; a name of spaces is accepted.
Refusal confirmNewCareer(Game& game, const NewCareerForm& form);

// Resets the career: every variable gets its restart value from the table. The vault becomes the starting
// cash of the next career, permanent energy and experience carry over, the inbox has the welcome e-mails, and
// the form has to be filled in again (enterPlayerDetails 0). Variables marked `kept` do not change; cameo
// sales and the company's salary and attribute points are among them on purpose. No week before the restart
// can be taken back.
void restartCareer(Game& game);

// Adds the weekly Basic Needs item when the list has none: every career pays for it.
void ensureBasicNeeds(Game& game);

// Sets agentFanBonus to 1 when no agent is signed, so that fan gains are not multiplied. Does nothing while
// an agent is signed.
void normaliseAgentFanBonus(Game& game);

}  // namespace tb
