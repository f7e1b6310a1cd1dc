#pragma once

// How a career begins, and how it begins again: the new-career form, the restart, and what must hold in every
// career from its first moment on.

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// The year in which every career begins.
inline constexpr Int firstYear = 2026;

// What the form holds when it is confirmed. The age is not in it: it is written when chosen.
struct NewCareerForm {
  String myName;
  String aboutDescription;
  Flag isMale = true;
  Image headshotImage;  // empty while none is chosen
};

// Sets the performer's age in years, and the year of birth to match, and writes both. A form whose age is
// never touched leaves the start values, 18 and 2005, which do not match.
void chooseAge(Game& game, Int age);

// Starts the career of the form: sets and writes name, biography, gender, picture and year, and marks the
// form as done. Refused, with nothing changed, while the name is empty; a name of blanks passes.
Refusal confirmNewCareer(Game& game, const NewCareerForm& form);

// Wipes the career: every variable takes and writes the table's value at a restart. The vault becomes the
// cash that the next career starts with, lasting energy and experience carry over, and the form is due again
// (enterPlayerDetails 0). What the table marks `kept` stays, the cameo sales and the company's salary and
// attribute points among it, on purpose.
void restartCareer(Game& game);

// Every career pays for its basic needs: adds and writes the weekly item when the list has none.
void ensureBasicNeeds(Game& game);

// With no agent signed, fan gains are neither widened nor lost: agentFanBonus becomes 1 and is written. Does
// nothing while an agent is signed.
void normaliseAgentFanBonus(Game& game);

}  // namespace tb
